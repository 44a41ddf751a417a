#include "Values/QuotedPrintable.h"

#include <array>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr uint s_kNoDigit = 0x100;
constexpr uint s_kBitsOfDigit = 4;
constexpr size_t s_kLength = 3; // of "=XX"

constexpr quint16 FindDigit( char a_byte )
{
    if ( a_byte >= '0' && a_byte <= '9' )
        return static_cast<quint16>( a_byte - '0' );
    if ( a_byte >= 'A' && a_byte <= 'F' )
        return static_cast<quint16>( a_byte - 'A' + 10 );
    return a_byte >= 'a' && a_byte <= 'f' ? static_cast<quint16>( a_byte - 'a' + 10 ) : s_kNoDigit;
}

constexpr std::array<quint16, 256> FindDigits()
{
    std::array<quint16, 256> digits = {};
    for ( size_t byte = 0; byte < digits.size(); ++byte )
        digits[byte] = FindDigit( static_cast<char>( byte ) );
    return digits;
}

constexpr std::array<quint16, 256> s_kDigits = FindDigits();

/// \return the byte of two digits; s_kNoDigit or more if they are not digits.
inline uint DigitsAt( const char* a_place )
{
    const uint high = s_kDigits[static_cast<uchar>( a_place[0] )];
    const uint low = s_kDigits[static_cast<uchar>( a_place[1] )];
    return high << s_kBitsOfDigit | low;
}

/// \return the byte that is encoded at a position; s_kNoDigit or more if there is none.
inline uint EncodedByte( std::string_view a_text, size_t a_place )
{
    if ( a_text.size() - a_place < s_kLength || a_text[a_place] != '=' )
        return s_kNoDigit;
    return DigitsAt( a_text.data() + a_place + 1 );
}

/// Decodes the encoded bytes at a position.
/// \param a_place advances after them.
/// \return the end of the output.
char* DecodeRun( std::string_view a_text, size_t& a_place, char* a_out )
{
    char* out = a_out;
    const char* place = a_text.data() + a_place;
    const char* const end = a_text.data() + a_text.size();
    for ( ; static_cast<size_t>( end - place ) >= s_kLength && *place == '='; place += s_kLength )
    {
        const uint byte = DigitsAt( place + 1 );
        if ( byte >= s_kNoDigit )
            break;
        if ( byte == '\n' && out > a_out && out[-1] == '\r' )
            --out;
        *out++ = static_cast<char>( byte );
    }
    a_place = static_cast<size_t>( place - a_text.data() );
    return out;
}

char* Copy( std::string_view a_text, char* a_out )
{
    if ( !a_text.empty() )
        std::memcpy( a_out, a_text.data(), a_text.size() );
    return a_out + a_text.size();
}

} // namespace

QuotedPrintableFaults DecodeQuotedPrintable( std::string_view a_text, QByteArray& a_out,
                                             std::vector<EncodedRun>& a_runs )
{
    QuotedPrintableFaults faults;
    const auto before = a_out.size();
    a_out.resize( before + static_cast<int>( a_text.size() ) );
    char* const begin = a_out.data();
    char* out = begin + before;
    size_t copied = 0;
    for ( size_t place = a_text.find( '=' ); place != std::string_view::npos; place = a_text.find( '=', place ) )
    {
        if ( EncodedByte( a_text, place ) >= s_kNoDigit )
        {
            faults.m_first = faults.m_count++ == 0 ? static_cast<quint32>( place ) : faults.m_first;
            ++place;
            continue;
        }
        out = Copy( a_text.substr( copied, place - copied ), out );
        char* const runEnd = DecodeRun( a_text, place, out );
        a_runs.push_back( { static_cast<quint32>( out - begin ), static_cast<quint32>( runEnd - begin ) } );
        out = runEnd;
        copied = place;
    }
    out = Copy( a_text.substr( copied ), out );
    a_out.resize( static_cast<int>( out - begin ) );
    return faults;
}

} // namespace PimManager::Contacts
