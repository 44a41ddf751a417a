#include "JCard/JsonCursor.h"

#include "Text/EightBytes.h"
#include "Text/Utf8Encoding.h"

#include <QChar>
#include <QtAlgorithms>

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kHexDigits = 4;

// The lowest bit that is set belongs to a zero byte; higher ones may be wrong.
constexpr quint64 ZeroBytes( quint64 a_word )
{
    return ( a_word - s_kOnes ) & ~a_word & s_kHighBits;
}

// Bytes that are the same in all forms of a string.
constexpr std::array<bool, 256> FindPlain( bool a_isEscaped )
{
    std::array<bool, 256> plain = {};
    for ( size_t byte = ' '; byte < plain.size(); ++byte )
        plain[byte] = true;
    plain[static_cast<size_t>( '"' )] = plain[static_cast<size_t>( '\\' )] = false;
    plain[static_cast<size_t>( ',' )] = plain[static_cast<size_t>( ';' )] = !a_isEscaped;
    return plain;
}

constexpr std::array<bool, 256> s_kPlain = FindPlain( false );
constexpr std::array<bool, 256> s_kPlainText = FindPlain( true );

// All others of eight bytes. As with ZeroBytes(), the lowest bit that is set is right.
constexpr quint64 SpecialBytes( quint64 a_word, bool a_isEscaped )
{
    const auto equals = [a_word]( char a_byte )
    { return ZeroBytes( a_word ^ ( s_kOnes * static_cast<uchar>( a_byte ) ) ); };
    quint64 found = ( ( a_word - s_kOnes * ' ' ) & ~a_word & s_kHighBits ) | equals( '"' ) | equals( '\\' );
    if ( a_isEscaped )
        found |= equals( ',' ) | equals( ';' );
    return found;
}

int HexOf( char a_byte )
{
    if ( a_byte >= '0' && a_byte <= '9' )
        return a_byte - '0';
    const char lower = static_cast<char>( a_byte | ' ' );
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

const char* FindQuoteOrBackslash( const char* a_begin, const char* a_end )
{
    const char* place = a_begin;
    for ( ; static_cast<size_t>( a_end - place ) >= s_kWord; place += s_kWord )
    {
        const quint64 word = WordAt( place );
        const quint64 found = ZeroBytes( word ^ ( s_kOnes * '"' ) ) | ZeroBytes( word ^ ( s_kOnes * '\\' ) );
        if ( found != 0 )
            return place + qCountTrailingZeroBits( found ) / 8;
    }
    while ( place < a_end && *place != '"' && *place != '\\' )
        ++place;
    return place;
}

char JsonCursor::Peek()
{
    while ( m_place < m_end && IsJsonSpace( *m_place ) )
        ++m_place;
    return m_place < m_end ? *m_place : '\0';
}

bool JsonCursor::Take( char a_delimiter )
{
    if ( Peek() != a_delimiter || m_place == m_end )
        return false;
    ++m_place;
    return true;
}

std::string_view JsonCursor::TakeWord()
{
    if ( Peek() == '\0' )
        return {};
    const char* const begin = m_place;
    const char* end = begin;
    while ( end < m_end && !EndsJsonWord( *end ) && *end != '}' && *end != ':' )
        ++end;
    if ( end == m_end )
        return {};
    m_place = end;
    return std::string_view( begin, static_cast<size_t>( end - begin ) );
}

void JsonCursor::AddError( const char* a_place )
{
    if ( m_errors++ == 0 )
        m_firstError = static_cast<size_t>( a_place - m_begin );
}

bool JsonCursor::AppendString( std::string& a_out, StringForm a_form )
{
    if ( !Take( '"' ) )
        return false;
    m_isBehindReturn = false;
    const char* place = m_place;
    while ( ( place = CopyPlain( place, a_out, a_form ) ) < m_end )
    {
        if ( *place == '"' )
        {
            m_place = place + 1;
            return true;
        }
        if ( *place == '\\' )
        {
            place = TakeEscape( place, a_out, a_form );
            continue;
        }
        if ( static_cast<uchar>( *place ) < ' ' )
            AddError( place );
        AppendByte( *place++, a_out, a_form );
    }
    m_place = m_end;
    return false;
}

// \return the first byte that is not copied unchanged.
const char* JsonCursor::CopyPlain( const char* a_place, std::string& a_out, StringForm a_form ) const
{
    const bool isEscaped = a_form == StringForm::Escaped;
    const std::array<bool, 256>& plain = isEscaped ? s_kPlainText : s_kPlain;
    const char* place = a_place;
    quint64 special = 0;
    for ( ; special == 0 && static_cast<size_t>( m_end - place ) >= s_kWord; place += s_kWord )
        special = SpecialBytes( WordAt( place ), isEscaped );
    if ( special != 0 )
        place = place - s_kWord + qCountTrailingZeroBits( special ) / 8;
    while ( place < m_end && plain[static_cast<uchar>( *place )] )
        ++place;
    a_out.append( a_place, static_cast<size_t>( place - a_place ) );
    return place;
}

void JsonCursor::AppendByte( char a_byte, std::string& a_out, StringForm a_form )
{
    const bool isBehindReturn = m_isBehindReturn;
    m_isBehindReturn = a_byte == '\r';
    if ( a_byte == '\n' || a_byte == '\r' )
    {
        if ( a_byte == '\n' && isBehindReturn )
            return;
        a_out += a_form == StringForm::Decoded ? "\n" : "\\n";
        return;
    }
    const bool isText = a_form == StringForm::Escaped;
    const bool isDelimiter = isText && ( a_byte == ',' || a_byte == ';' );
    if ( isDelimiter || ( a_byte == '\\' && ( isText || a_form == StringForm::Uri ) ) )
        a_out += '\\';
    a_out += a_byte;
}

// \param a_place a backslash.
// \return the position after the escape; the end of the text if it is cut off.
const char* JsonCursor::TakeEscape( const char* a_place, std::string& a_out, StringForm a_form )
{
    constexpr std::string_view s_kNames = "\"\\/bfnrt";
    constexpr std::string_view s_kCharacters = "\"\\/\b\f\n\r\t";
    const char* const name = a_place + 1;
    if ( name == m_end )
        return m_end;
    if ( *name == 'u' )
        return TakeUnicode( a_place, a_out, a_form );
    const size_t index = s_kNames.find( *name );
    if ( index != std::string_view::npos )
    {
        AppendByte( s_kCharacters[index], a_out, a_form );
        return name + 1;
    }
    // The character is read again, without its backslash.
    AddError( a_place );
    return name;
}

// \return the unit of UTF-16 of an escape; -1 if the escape is incomplete.
int JsonCursor::UnitAt( const char* a_place ) const
{
    if ( m_end - a_place < 2 + s_kHexDigits || a_place[0] != '\\' || a_place[1] != 'u' )
        return -1;
    int unit = 0;
    for ( int i = 0; i < s_kHexDigits; ++i )
    {
        const int digit = HexOf( a_place[2 + i] );
        if ( digit < 0 )
            return -1;
        unit = unit * 16 + digit;
    }
    return unit;
}

const char* JsonCursor::TakeUnicode( const char* a_place, std::string& a_out, StringForm a_form )
{
    const int unit = UnitAt( a_place );
    if ( unit < 0 )
    {
        AddError( a_place );
        return a_place + 1;
    }
    const char* end = a_place + 2 + s_kHexDigits;
    if ( unit < 0x80 )
    {
        AppendByte( static_cast<char>( unit ), a_out, a_form );
        return end;
    }
    auto character = static_cast<char32_t>( unit );
    if ( QChar::isSurrogate( character ) )
    {
        const int low = QChar::isHighSurrogate( character ) ? UnitAt( end ) : -1;
        const bool isPair = low >= 0 && QChar::isLowSurrogate( static_cast<uint>( low ) );
        if ( isPair )
            end += 2 + s_kHexDigits;
        else
            AddError( a_place );
        character = isPair ? QChar::surrogateToUcs4( static_cast<ushort>( unit ), static_cast<ushort>( low ) )
                           : static_cast<char32_t>( QChar::ReplacementCharacter );
    }
    std::array<char, s_kLongestUtf8> bytes = {};
    a_out.append( bytes.data(), static_cast<size_t>( WriteUtf8( character, bytes.data() ) - bytes.data() ) );
    m_isBehindReturn = false;
    return end;
}

} // namespace PimManager::Contacts
