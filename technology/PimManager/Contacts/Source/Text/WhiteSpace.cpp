#include "Text/WhiteSpace.h"

#include "Text/Bytes.h"
#include "Text/EightBytes.h"

#include <QtGlobal>

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr size_t s_kLongest = 3;

// Other than those from U+2000 to U+200A.
constexpr std::array s_kWide = {
    "\xC2\x85"sv,     // U+0085, next line
    "\xC2\xA0"sv,     // U+00A0, no-break space
    "\xE1\x9A\x80"sv, // U+1680, Ogham space mark
    "\xE2\x80\xA8"sv, // U+2028, line separator
    "\xE2\x80\xA9"sv, // U+2029, paragraph separator
    "\xE2\x80\xAF"sv, // U+202F, narrow no-break space
    "\xE2\x81\x9F"sv, // U+205F, medium mathematical space
    "\xE3\x80\x80"sv, // U+3000, ideographic space
};

// Each space beyond ASCII begins with one of these bytes.
bool MayBeginSpace( char a_byte )
{
    const auto byte = static_cast<uchar>( a_byte );
    return byte <= ' ' || byte == 0xC2 || ( byte >= 0xE1 && byte <= 0xE3 );
}

size_t LengthOfWideSpace( std::string_view a_text )
{
    const std::string_view start = a_text.substr( 0, s_kLongest );
    // U+2000 to U+200A.
    const bool isSpace = start.size() == s_kLongest && start.substr( 0, 2 ) == "\xE2\x80"sv;
    if ( isSpace && static_cast<uchar>( start[2] ) <= 0x8A )
        return s_kLongest;
    const auto* const found =
        std::find_if( s_kWide.begin(), s_kWide.end(),
                      [start]( std::string_view a_space ) { return start.substr( 0, a_space.size() ) == a_space; } );
    return found == s_kWide.end() ? 0 : found->size();
}

/// \return true if eight bytes, the first one lowest, are visible ASCII and single blanks.
/// \param a_isNextVisible decides whether a blank that is the last of them is a single one.
bool ArePlainWords( quint64 a_bytes, bool a_isNextVisible )
{
    // These have the high bit of each byte of ASCII from a blank on, after a blank, and of DEL.
    const quint64 fromBlank = a_bytes + s_kOnes * ( 0x80 - ' ' );
    const quint64 behindBlank = a_bytes + s_kOnes * ( 0x80 - ' ' - 1 );
    const quint64 isDelete = a_bytes + s_kOnes;
    const quint64 blanks = ( fromBlank & ~behindBlank ) & s_kHighBits;
    const quint64 next = a_isNextVisible ? 0 : s_kHighBits << 56U;
    const quint64 doubles = blanks & ( blanks >> 8U | next );
    return ( ( a_bytes | ~fromBlank | isDelete ) & s_kHighBits ) == 0 && doubles == 0;
}

/// \return the length of the visible ASCII and single blanks at the start of a text: either all of it, or in steps of
///         eight bytes.
size_t LengthOfPlainWords( std::string_view a_text )
{
    size_t place = 0;
    for ( ; a_text.size() - place > s_kWord; place += s_kWord )
    {
        const std::string_view rest( a_text.data() + place, a_text.size() - place );
        if ( !ArePlainWords( FirstEight( rest ), IsVisibleAscii( rest[s_kWord] ) ) )
            return place;
    }
    // The rest is filled up with letters.
    const std::string_view rest( a_text.data() + place, a_text.size() - place );
    return ArePlainWords( FirstEight( rest, 'x' ), false ) ? a_text.size() : place;
}

/// \return the end of the words at the start of a text that single blanks divide already. No white space is at the end
///         of the text.
size_t EndOfWords( std::string_view a_text )
{
    size_t place = LengthOfPlainWords( a_text );
    while ( place < a_text.size() )
    {
        const bool isSingleBlank =
            a_text[place] == ' ' && place + 1 < a_text.size() && !MayBeginSpace( a_text[place + 1] );
        const bool isInside = isSingleBlank || !MayBeginSpace( a_text[place] );
        if ( !isInside && LengthOfWhiteSpace( a_text.substr( place ) ) > 0 )
            break;
        ++place;
    }
    return place;
}

} // namespace

size_t LengthOfWhiteSpace( std::string_view a_text )
{
    if ( a_text.empty() || !MayBeginSpace( a_text.front() ) )
        return 0;
    const char first = a_text.front();
    if ( first == ' ' || ( first >= '\t' && first <= '\r' ) )
        return 1;
    return LengthOfWideSpace( a_text );
}

std::string_view RemovedOuterSpace( std::string_view a_text )
{
    std::string_view text = a_text;
    while ( const size_t length = LengthOfWhiteSpace( text ) )
        text.remove_prefix( length );
    for ( size_t length = 1; length <= std::min( s_kLongest, text.size() ); ++length )
    {
        if ( LengthOfWhiteSpace( text.substr( text.size() - length ) ) != length )
            continue;
        text.remove_suffix( length );
        length = 0;
    }
    return text;
}

void AppendWords( std::string_view a_text, QByteArray& a_out )
{
    std::string_view rest = WithoutOuterSpace( a_text );
    while ( !rest.empty() )
    {
        const size_t end = EndOfWords( rest );
        if ( !a_out.isEmpty() )
            a_out.append( ' ' );
        a_out.append( rest.data(), static_cast<int>( end ) );
        rest.remove_prefix( end );
        while ( const size_t length = LengthOfWhiteSpace( rest ) )
            rest.remove_prefix( length );
    }
}

std::string_view WordsIn( std::string_view a_text, QByteArray& a_buffer )
{
    const std::string_view text = WithoutOuterSpace( a_text );
    if ( EndOfWords( text ) == text.size() )
        return text;
    a_buffer.resize( 0 );
    AppendWords( text, a_buffer );
    return ViewOf( a_buffer );
}

} // namespace PimManager::Contacts
