#include "Values/PartReader.h"

#include "Text/Buffer.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr uint s_kBackslash = 0x80;

constexpr std::array<quint8, 256> FindClasses()
{
    std::array<quint8, 256> classes = {};
    classes[static_cast<size_t>( '\\' )] = s_kBackslash;
    classes[static_cast<size_t>( ';' )] = static_cast<quint8>( Delimiters::Semicolons );
    classes[static_cast<size_t>( ',' )] = static_cast<quint8>( Delimiters::Commas );
    return classes;
}

constexpr std::array<quint8, 256> s_kClasses = FindClasses();

constexpr quint64 EachByte( char a_byte )
{
    return 0x0101010101010101ULL * static_cast<uchar>( a_byte );
}

// Zero if there is no such byte.
constexpr quint64 HasZeroByte( quint64 a_word )
{
    return ( a_word - EachByte( 1 ) ) & ~a_word & EachByte( '\x80' );
}

/// \return the first eight bytes that have a backslash, semicolon or comma, or the last few bytes.
const char* PassWords( const char* a_place, const char* a_end )
{
    quint64 word = 0;
    for ( ; static_cast<size_t>( a_end - a_place ) >= sizeof( word ); a_place += sizeof( word ) )
    {
        std::memcpy( &word, a_place, sizeof( word ) );
        const quint64 found = HasZeroByte( word ^ EachByte( '\\' ) ) | HasZeroByte( word ^ EachByte( ';' ) ) |
                              HasZeroByte( word ^ EachByte( ',' ) );
        if ( found != 0 )
            break;
    }
    return a_place;
}

} // namespace

PartReader::PartReader( const EscapedText& a_text, Delimiters a_delimiters, QByteArray& a_buffer,
                        Findings& a_findings ) :
    m_text( a_text.m_text ),
    m_specials( static_cast<uint>( a_delimiters ) | s_kBackslash ),
    m_buffer( a_buffer ),
    m_findings( a_findings )
{
    if ( a_text.m_literals == nullptr )
        return;
    m_literal = a_text.m_literals->data();
    m_literalsEnd = m_literal + a_text.m_literals->size();
}

inline size_t PartReader::FindByte( size_t a_place ) const
{
    if ( m_specials == s_kBackslash )
        return std::min( m_text.find( '\\', a_place ), m_text.size() );
    const uint specials = m_specials;
    const char* const end = m_text.data() + m_text.size();
    const char* place = PassWords( m_text.data() + a_place, end );
    while ( place < end && ( s_kClasses[static_cast<uchar>( *place )] & specials ) == 0 )
        ++place;
    return static_cast<size_t>( place - m_text.data() );
}

inline bool PartReader::IsLiteral( size_t a_place )
{
    while ( m_literal != m_literalsEnd && *m_literal < a_place )
        ++m_literal;
    return m_literal != m_literalsEnd && *m_literal == a_place;
}

/// \return the first delimiter or backslash from a position on, or the end.
inline size_t PartReader::FindSpecial( size_t a_place )
{
    size_t place = FindByte( a_place );
    while ( place < m_text.size() && IsLiteral( place ) )
        place = FindByte( place + 1 );
    return place;
}

inline void PartReader::EndPart( size_t a_begin, size_t a_end )
{
    if ( m_end == nullptr )
    {
        m_part = m_text.substr( a_begin, a_end - a_begin );
        return;
    }
    CopyUpTo( a_end );
    m_part = std::string_view( m_buffer.constData(), static_cast<size_t>( m_end - m_buffer.constData() ) );
    m_end = nullptr;
}

bool PartReader::Next()
{
    if ( m_isAtEnd )
        return false;
    const size_t begin = m_place;
    size_t place = FindSpecial( begin );
    while ( place < m_text.size() && m_text[place] == '\\' )
        place = FindSpecial( TakeEscape( place ) );
    EndPart( begin, place );
    m_isAtEnd = place == m_text.size();
    m_delimiter = m_isAtEnd ? '\0' : m_text[place];
    m_place = place + 1;
    return true;
}

/// \return the position after the escape.
size_t PartReader::TakeEscape( size_t a_backslash )
{
    const size_t next = a_backslash + 1;
    const char escaped = next < m_text.size() ? m_text[next] : '\0';
    switch ( escaped )
    {
    case 'n':
    case 'N':
        Replace( a_backslash, 2, '\n' );
        return next + 1;
    case '"':
    case '\'':
        m_findings.Add( PimContactDecodingProblem::EscapedQuote, static_cast<qint64>( a_backslash ) );
        [[fallthrough]];
    case '\\':
    case ',':
    case ';':
    case ':':
        Replace( a_backslash, 2, escaped );
        return next + 1;
    default:
        m_findings.Add( PimContactDecodingProblem::UnknownEscape, static_cast<qint64>( a_backslash ) );
        return next;
    }
}

void PartReader::Replace( size_t a_backslash, size_t a_length, char a_character )
{
    if ( m_end == nullptr )
    {
        // A part without its escapes is no longer than with them.
        Resize( m_buffer, static_cast<int>( m_text.size() - m_place ) );
        m_end = m_buffer.data();
        m_copied = m_place;
    }
    CopyUpTo( a_backslash );
    *m_end++ = a_character;
    m_copied = a_backslash + a_length;
}

void PartReader::CopyUpTo( size_t a_place )
{
    const size_t size = a_place - m_copied;
    std::memcpy( m_end, m_text.data() + m_copied, size );
    m_end += size;
}

} // namespace PimManager::Contacts
