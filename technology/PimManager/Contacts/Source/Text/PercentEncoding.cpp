#include "Text/PercentEncoding.h"

#include "Text/Bytes.h"

namespace PimManager::Contacts
{

namespace
{

constexpr size_t s_kLength = 3; // of "%XX"

int Digit( char a_byte )
{
    constexpr std::string_view s_kDigits = "0123456789ABCDEF";
    const size_t digit = s_kDigits.find( Upper( a_byte ) );
    return digit == std::string_view::npos ? -1 : static_cast<int>( digit );
}

} // namespace

int PercentByte( std::string_view a_text, size_t a_place )
{
    if ( a_text.size() - a_place < s_kLength )
        return -1;
    const int high = Digit( a_text[a_place + 1] );
    const int low = Digit( a_text[a_place + 2] );
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

void AppendPercentDecoded( std::string_view a_text, QByteArray& a_out )
{
    size_t copied = 0;
    for ( size_t place = a_text.find( '%' ); place != std::string_view::npos; place = a_text.find( '%', place ) )
    {
        const int byte = PercentByte( a_text, place );
        if ( byte < 0 )
        {
            ++place;
            continue;
        }
        a_out.append( a_text.data() + copied, static_cast<int>( place - copied ) );
        a_out.append( static_cast<char>( byte ) );
        place += s_kLength;
        copied = place;
    }
    a_out.append( a_text.data() + copied, static_cast<int>( a_text.size() - copied ) );
}

} // namespace PimManager::Contacts
