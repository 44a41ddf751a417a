#include "PimVCardUtf8.h"

namespace PimManager::vCardImport
{

namespace
{

using Byte = unsigned char;

bool IsTail( std::string_view a_text, size_t a_place )
{
    return a_place < a_text.size() && ( static_cast<Byte>( a_text[a_place] ) & 0xC0U ) == 0x80U;
}

// The second byte says if the character is overlong, a surrogate, or beyond U+10FFFF.
bool IsSecondInRange( Byte a_lead, Byte a_second )
{
    switch ( a_lead )
    {
    case 0xE0:
        return a_second >= 0xA0;
    case 0xED:
        return a_second <= 0x9F;
    case 0xF0:
        return a_second >= 0x90;
    case 0xF4:
        return a_second <= 0x8F;
    default:
        return true;
    }
}

size_t LengthByLead( Byte a_lead )
{
    if ( a_lead < 0x80 )
        return 1;
    if ( a_lead < 0xC2 || a_lead > 0xF4 )
        return 0;
    if ( a_lead < 0xE0 )
        return 2;
    return a_lead < 0xF0 ? 3 : 4;
}

} // namespace

int Utf8LengthOfFirst( std::string_view a_text )
{
    const auto lead = static_cast<Byte>( a_text.front() );
    const size_t length = LengthByLead( lead );
    for ( size_t i = 1; i < length; ++i )
    {
        if ( !IsTail( a_text, i ) )
            return 0;
    }
    if ( length > 1 && !IsSecondInRange( lead, static_cast<Byte>( a_text[1] ) ) )
        return 0;
    return static_cast<int>( length );
}

PimVCardUtf8Census Utf8CensusOf( std::string_view a_text )
{
    PimVCardUtf8Census census;
    for ( size_t place = 0; place < a_text.size(); )
    {
        if ( static_cast<Byte>( a_text[place] ) < 0x80 )
        {
            ++place;
            continue;
        }
        const int length = Utf8LengthOfFirst( a_text.substr( place ) );
        ++( length == 0 ? census.m_malformed : census.m_wide );
        place += length == 0 ? 1 : static_cast<size_t>( length );
    }
    return census;
}

long long Utf16Units( std::string_view a_utf8 )
{
    long long units = 0;
    for ( const char byte : a_utf8 )
    {
        const auto code = static_cast<Byte>( byte );
        units += ( code & 0xC0U ) == 0x80U ? 0 : 1;
        units += code >= 0xF0 ? 1 : 0;
    }
    return units;
}

} // namespace PimManager::vCardImport
