#include "Writing/Folding.h"

#include "Text/Buffer.h"
#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kLineEnd = "\r\n";
constexpr std::string_view s_kFold = "\r\n ";
constexpr std::string_view s_kSoftBreak = "=\r\n";

/// \return true if a text ends with an odd number of these bytes: the last one then belongs to the next character.
bool EndsInOdd( std::string_view a_text, char a_byte )
{
    size_t first = a_text.size();
    while ( first > 0 && a_text[first - 1] == a_byte )
        --first;
    return ( a_text.size() - first ) % 2 != 0;
}

/// \return true if the text must not be divided at a position. A "=" at the end of a physical line looks like a soft
///         line break, even with blanks after it.
bool IsBadFold( std::string_view a_text, size_t a_place )
{
    const size_t last = a_text.find_last_not_of( " \t", a_place - 1 );
    return ( last != std::string_view::npos && a_text[last] == '=' ) || EndsInEscape( a_text.substr( 0, a_place ) );
}

/// \param a_text does not begin inside a character or an escape.
/// \return the last position up to a_most where a text may be divided. Malformed UTF-8 is divided anywhere.
size_t PlaceOfFold( std::string_view a_text, size_t a_most )
{
    constexpr size_t s_kLongestTail = 3;
    size_t place = a_most;
    while ( a_most - place < s_kLongestTail && IsInsideCharacter( a_text[place] ) )
        --place;
    if ( IsInsideCharacter( a_text[place] ) )
        place = a_most;
    const size_t best = place;
    while ( place > 1 && IsBadFold( a_text, place ) )
        --place;
    // A line that consists of equals signs only.
    return place > 1 ? place : best;
}

/// \return the position before an encoded byte that ends at a_place or after it; otherwise a_place.
size_t BeforeEncodedByte( std::string_view a_text, size_t a_place )
{
    for ( size_t back = 1; back <= 2 && back < a_place; ++back )
    {
        if ( a_text[a_place - back] == '=' )
            return a_place - back;
    }
    return a_place;
}

/// \return true if an encoded byte is the second or a later one of a character, or of a line break.
bool IsTailByte( std::string_view a_text )
{
    const char digit = a_text.size() > 2 && a_text[0] == '=' ? a_text[1] : '\0';
    return digit == '8' || digit == '9' || digit == 'A' || digit == 'B' || a_text.substr( 0, 3 ) == "=0A";
}

/// \param a_text longer than a_most, which is 4 at least. Does not begin inside an encoded byte.
size_t PlaceOfSoftBreak( std::string_view a_text, size_t a_most )
{
    constexpr size_t s_kEncodedByte = 3;
    size_t place = BeforeEncodedByte( a_text, a_most );
    for ( int tails = 0; tails < 3 && place > s_kEncodedByte && IsTailByte( a_text.substr( place ) ); ++tails )
        place -= s_kEncodedByte;
    // A blank at the start of a physical line may be taken for a fold.
    if ( place > 1 && ( a_text[place - 1] == '\\' || IsBlank( a_text[place] ) ) )
        place = BeforeEncodedByte( a_text, place - 1 );
    return place;
}

} // namespace

bool EndsInEscape( std::string_view a_text )
{
    return EndsInOdd( a_text, '\\' ) || EndsInOdd( a_text, '^' );
}

void AppendFolded( std::string_view a_line, QByteArray& a_out )
{
    std::string_view rest = a_line;
    for ( size_t width = s_kLineLength; rest.size() > width; width = s_kLineLength - 1 )
    {
        const size_t place = PlaceOfFold( rest, width );
        const std::string_view line = rest.substr( 0, place );
        rest.remove_prefix( place );
        // Most lines that are too long have two parts.
        if ( rest.size() < s_kLineLength )
            return AppendAll( a_out, { line, s_kFold, rest, s_kLineEnd } );
        AppendAll( a_out, { line, s_kFold } );
    }
    AppendAll( a_out, { rest, s_kLineEnd } );
}

void AppendSoftBroken( std::string_view a_head, std::string_view a_value, QByteArray& a_out )
{
    Append( a_out, a_head );
    std::string_view rest = a_value;
    size_t width = s_kLineLength - std::min( a_head.size(), s_kLineLength );
    while ( rest.size() > width )
    {
        // One position is for the "=".
        const size_t place = width < 10 ? 0 : PlaceOfSoftBreak( rest, width - 1 );
        AppendAll( a_out, { rest.substr( 0, place ), s_kSoftBreak } );
        rest.remove_prefix( place );
        width = s_kLineLength;
    }
    AppendAll( a_out, { rest, s_kLineEnd } );
}

} // namespace PimManager::Contacts
