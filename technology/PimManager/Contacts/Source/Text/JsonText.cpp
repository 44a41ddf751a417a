#include "Text/JsonText.h"

#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/EightBytes.h"
#include "Text/PlainCharacters.h"
#include "Text/UnsafeCharacters.h"
#include "Text/Utf8Encoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <new>

namespace PimManager::Contacts
{

namespace
{

// A little less than a QByteArray of Qt 5 may have.
constexpr size_t s_kLongest = static_cast<size_t>( std::numeric_limits<int>::max() ) - 64;
constexpr int s_kLeastRoom = 4096;
constexpr size_t s_kLongestNumber = 20;
// `\udb40\udc7f`
constexpr size_t s_kLongestEscape = 12;
// This many bytes of a text are written without checking the capacity.
constexpr size_t s_kRun = 256;
constexpr std::string_view s_kReplacement = "\xEF\xBF\xBD";

/// A byte of a name in upper case, and zero for all other bytes.
constexpr std::array<char, 256> FindUpperNames()
{
    std::array<char, 256> names = {};
    for ( size_t byte = 'A'; byte <= 'Z'; ++byte )
        names[byte] = names[byte + ( 'a' - 'A' )] = static_cast<char>( byte );
    for ( size_t byte = '0'; byte <= '9'; ++byte )
        names[byte] = static_cast<char>( byte );
    names[static_cast<size_t>( '-' )] = '-';
    return names;
}

constexpr std::array<char, 256> s_kUpperNames = FindUpperNames();

struct Character
{
    char32_t m_value = 0;
    /// Zero if the bytes are malformed.
    size_t m_length = 0;
};

/// Reads a character beyond ASCII (RFC 3629, section 4).
Character CharacterAt( std::string_view a_text )
{
    const auto lead = static_cast<uchar>( a_text[0] );
    const size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if ( lead < 0xC2 || lead > 0xF4 || a_text.size() < length )
        return {};
    char32_t value = lead & ( 0x7FU >> length );
    for ( size_t i = 1; i < length; ++i )
    {
        const auto tail = static_cast<uchar>( a_text[i] );
        if ( !IsTail( a_text[i] ) )
            return {};
        value = value << 6U | ( tail & 0x3FU );
    }
    constexpr std::array<char32_t, 5> s_kLeast = { 0, 0, 0x80, 0x800, 0x10000 };
    const bool isSurrogate = value >= 0xD800 && value < 0xE000;
    if ( value < s_kLeast[length] || value > 0x10FFFF || isSurrogate )
        return {};
    return { value, length };
}

} // namespace

JsonText::JsonText( QByteArray& a_out ) :
    m_out( a_out ),
    m_before( static_cast<size_t>( a_out.size() ) )
{
    Begin();
}

JsonText::JsonText() :
    m_out( m_own ),
    m_before( 0 )
{
    Begin();
}

JsonText::~JsonText()
{
    if ( !m_isFinished )
        m_out.resize( static_cast<int>( m_before ) );
}

void JsonText::Finish()
{
    m_out.resize( static_cast<int>( m_end - m_begin ) );
    m_isFinished = true;
}

void JsonText::Begin()
{
    // An array whose memory was reserved keeps it when it becomes shorter.
    m_out.reserve( std::max( static_cast<int>( m_out.capacity() ), static_cast<int>( m_before ) + s_kLeastRoom ) );
    UseWholeCapacity();
    m_end = m_begin + m_before;
}

void JsonText::Clear()
{
    constexpr int s_kLarge = 64 * 1024;
    if ( m_limit - m_begin > s_kLarge )
    {
        m_out.resize( static_cast<int>( m_before ) );
        m_out.squeeze();
        Begin();
    }
    Remove( 0 );
}

void JsonText::UseWholeCapacity()
{
    m_out.resize( m_out.capacity() );
    m_begin = m_out.data();
    m_limit = m_begin + m_out.size();
}

char* JsonText::Grow( size_t a_bytes )
{
    const auto size = static_cast<size_t>( m_end - m_begin );
    if ( a_bytes > s_kLongest - size )
        throw std::bad_alloc();
    const size_t wanted = std::max( size + a_bytes, std::min( size + size / 2, s_kLongest ) );
    m_out.reserve( static_cast<int>( wanted ) );
    UseWholeCapacity();
    m_end = m_begin + size;
    return m_end;
}

void JsonText::Number( qint64 a_number )
{
    char* const begin = Room( s_kLongestNumber );
    m_end = std::to_chars( begin, begin + s_kLongestNumber, a_number ).ptr;
}

void JsonText::Insert( size_t a_place, std::string_view a_json )
{
    char* const end = Room( a_json.size() );
    char* const place = m_begin + m_before + a_place;
    std::memmove( place + a_json.size(), place, static_cast<size_t>( end - place ) );
    std::copy( a_json.begin(), a_json.end(), place );
    m_end = end + a_json.size();
}

void JsonText::FilledString( std::string_view a_text )
{
    if ( !CopyPlainString( a_text ) )
        EscapedString( a_text );
}

void JsonText::EscapedString( std::string_view a_text )
{
    *Room( 1 ) = '"';
    ++m_end;
    Escape( a_text );
    *Room( 1 ) = '"';
    ++m_end;
}

bool JsonText::PlainString( std::string_view a_text )
{
    return CopyPlainString( a_text );
}

Q_ALWAYS_INLINE bool JsonText::CopyPlainString( std::string_view a_text )
{
    const size_t size = a_text.size();
    if ( size > s_kRun )
        return false;
    char* const end = Room( s_kRun + 2 );
    *end = '"';
    if ( !( size < s_kWord ? CopyShort( a_text, end + 1 ) : CopyWords( a_text, end + 1 ) ) )
        return false;
    end[1 + size] = '"';
    m_end = end + size + 2;
    return true;
}

void JsonText::UpperString( std::string_view a_text )
{
    char* end = Room( a_text.size() + 2 );
    *end++ = '"';
    size_t place = 0;
    for ( ; place < a_text.size(); ++place )
    {
        *end = s_kUpperNames[static_cast<uchar>( a_text[place] )];
        if ( *end == '\0' )
            break;
        ++end;
    }
    m_end = end;
    if ( place < a_text.size() )
    {
        m_upper = BytesOf( a_text.substr( place ) );
        std::transform( m_upper.begin(), m_upper.end(), m_upper.begin(), Upper );
        Escape( ViewOf( m_upper ) );
    }
    *Room( 1 ) = '"';
    ++m_end;
}

void JsonText::LowerName( std::string_view a_name )
{
    char* const end = Room( a_name.size() + s_kWord + 2 );
    *end = '"';
    for ( size_t place = 0; place < a_name.size(); place += s_kWord )
    {
        const std::string_view rest( a_name.data() + place, a_name.size() - place );
        const quint64 word = qToLittleEndian( LowerOfEight( FirstEight( rest ) ) );
        std::memcpy( end + 1 + place, &word, sizeof( word ) );
    }
    m_end = end + 1 + a_name.size();
    *m_end++ = '"';
}

void JsonText::Escape( std::string_view a_text )
{
    std::string_view rest = a_text;
    while ( !rest.empty() )
    {
        Room( s_kRun * s_kLongestEscape );
        const char* place = rest.data();
        const char* const runEnd = place + std::min( s_kRun, rest.size() );
        while ( place < runEnd )
        {
            place = CopyPlain( place, runEnd, rest.data() + rest.size() );
            if ( place < runEnd )
                place += EscapeCharacter( rest.substr( static_cast<size_t>( place - rest.data() ) ) );
        }
        rest.remove_prefix( static_cast<size_t>( place - rest.data() ) );
    }
}

/// Appends the characters at the start of a run that need no escape: plain ASCII and most letters. There must be room
/// for them.
/// \param a_textEnd the end of the text. A letter may go beyond the end of the run.
/// \return the position of the first other character, or the end of the run or of the letter there.
inline const char* JsonText::CopyPlain( const char* a_begin, const char* a_runEnd, const char* a_textEnd )
{
    const char* place = a_begin;
    char* end = m_end;
    while ( place < a_runEnd )
    {
        quint64 word = s_kHighBits;
        if ( static_cast<size_t>( a_runEnd - place ) >= s_kWord )
            std::memcpy( &word, place, s_kWord );
        const bool isWord = !HasSpecial( word );
        if ( isWord )
            std::memcpy( end, &word, s_kWord );
        const size_t length = isWord ? s_kWord : CopyCharacter( place, a_textEnd, end );
        if ( length == 0 )
            break;
        place += length;
        end += length;
    }
    m_end = end;
    return place;
}

/// Appends the first character of a text. There must be room for it.
/// \return its length in the text.
size_t JsonText::EscapeCharacter( std::string_view a_rest )
{
    const char byte = a_rest.front();
    if ( byte == '"' || byte == '\\' )
    {
        *m_end++ = '\\';
        *m_end++ = byte;
        return 1;
    }
    if ( byte == '\n' )
    {
        *m_end++ = '\\';
        *m_end++ = 'n';
        return 1;
    }
    if ( IsAsciiByte( byte ) )
    {
        Escaped( static_cast<uchar>( byte ) );
        return 1;
    }
    const auto character = CharacterAt( a_rest );
    if ( IsUnsafe( character.m_value ) && character.m_length > 0 )
    {
        Escaped( character.m_value );
        return character.m_length;
    }
    const std::string_view shown = character.m_length > 0 ? a_rest.substr( 0, character.m_length ) : s_kReplacement;
    std::memcpy( m_end, shown.data(), shown.size() );
    m_end += shown.size();
    return std::max<size_t>( character.m_length, 1 );
}

void JsonText::Escaped( char32_t a_character )
{
    if ( a_character > 0xFFFF )
    {
        Escaped( 0xD7C0U + ( a_character >> 10U ) );
        Escaped( 0xDC00U | ( a_character & 0x3FFU ) );
        return;
    }
    constexpr std::string_view s_kDigits = "0123456789abcdef";
    *m_end++ = '\\';
    *m_end++ = 'u';
    for ( unsigned shift = 16; shift > 0; )
    {
        shift -= 4;
        *m_end++ = s_kDigits[a_character >> shift & 0xFU];
    }
}

} // namespace PimManager::Contacts
