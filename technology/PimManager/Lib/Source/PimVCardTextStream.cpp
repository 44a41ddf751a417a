#include "PimVCardTextStream.h"

#include <array>
#include <cstring>

namespace PimManager::vCard
{

namespace
{

constexpr int s_kByteOrderMarkLength = 3;
constexpr int s_kLongestTail = 3;

bool IsContinuation( char a_byte )
{
    return ( static_cast<uchar>( a_byte ) & 0xC0 ) == 0x80;
}

// The number of bytes that follow a lead byte. 0 for a byte that begins no character.
int TailLength( uchar a_lead )
{
    if ( a_lead < 0xC2 || a_lead > 0xF4 )
        return 0;
    if ( a_lead < 0xE0 )
        return 1;
    return a_lead < 0xF0 ? 2 : s_kLongestTail;
}

// The end of a text without an incomplete last character.
const char* EndOfWholeCharacters( const char* a_begin, const char* a_end )
{
    const char* lead = a_end;
    while ( lead != a_begin && a_end - lead < s_kLongestTail && IsContinuation( lead[-1] ) )
        --lead;
    if ( lead == a_begin )
        return a_end;
    --lead;
    return TailLength( static_cast<uchar>( *lead ) ) >= a_end - lead ? lead : a_end;
}

bool IsCharacter( uint a_code, int a_tailLength )
{
    static constexpr std::array<uint, s_kLongestTail + 1> s_kLeast = { 0, 0x80, 0x800, 0x10000 };
    return a_code >= s_kLeast[static_cast<size_t>( a_tailLength )] && a_code <= QChar::LastValidCodePoint &&
           !QChar::isSurrogate( a_code );
}

} // namespace

PimVCardTextStream::PimVCardTextStream( const QByteArray* a_data ) :
    m_begin( a_data->constData() ),
    m_end( EndOfWholeCharacters( m_begin, m_begin + a_data->size() ) ),
    m_next( m_begin ),
    m_origin( m_begin )
{
}

bool PimVCardTextStream::seek( qint64 a_place )
{
    if ( a_place < 0 || a_place > m_end - m_begin )
        return false;
    m_next = m_begin + a_place;
    m_origin = m_next;
    m_lowSurrogate = 0;
    return true;
}

QChar PimVCardTextStream::ReadBeyondAscii()
{
    if ( IsInsidePair() )
        return TakeLowSurrogate();
    if ( m_next == m_origin )
        SkipByteOrderMark();
    const uint character = DecodeCharacter();
    if ( !QChar::requiresSurrogates( character ) )
        return QChar( character );
    m_lowSurrogate = QChar::lowSurrogate( character );
    return QChar( QChar::highSurrogate( character ) );
}

QChar PimVCardTextStream::TakeLowSurrogate()
{
    const QChar low( m_lowSurrogate );
    m_lowSurrogate = 0;
    return low;
}

uint PimVCardTextStream::DecodeCharacter()
{
    if ( m_next == m_end )
    {
        setStatus( QTextStream::ReadPastEnd );
        return 0;
    }
    const auto lead = static_cast<uchar>( *m_next++ );
    if ( lead < 0x80 )
        return lead;
    const int tailLength = TailLength( lead );
    if ( tailLength == 0 || tailLength > m_end - m_next )
        return QChar::ReplacementCharacter;
    uint character = lead & ( 0x3FU >> static_cast<uint>( tailLength ) );
    for ( int i = 0; i < tailLength; ++i )
    {
        if ( !IsContinuation( m_next[i] ) )
            return QChar::ReplacementCharacter;
        character = character << 6U | ( static_cast<uchar>( m_next[i] ) & 0x3FU );
    }
    if ( !IsCharacter( character, tailLength ) )
        return QChar::ReplacementCharacter;
    m_next += tailLength;
    return character;
}

bool PimVCardTextStream::SkipByteOrderMark()
{
    if ( m_end - m_next < s_kByteOrderMarkLength || std::memcmp( m_next, "\xEF\xBB\xBF", s_kByteOrderMarkLength ) != 0 )
        return false;
    m_next += s_kByteOrderMarkLength;
    return true;
}

bool PimVCardTextStream::PassMarkOrHalf()
{
    if ( IsInsidePair() )
        return !TakeLowSurrogate().isNull();
    if ( m_next == m_origin )
        SkipByteOrderMark();
    return false;
}

QString PimVCardTextStream::readLine()
{
    if ( atEnd() )
        return QString();
    const auto* const lineFeed =
        static_cast<const char*>( std::memchr( m_next, '\n', static_cast<size_t>( m_end - m_next ) ) );
    QString line = ReadTo( lineFeed != nullptr ? lineFeed : m_end );
    if ( lineFeed != nullptr )
        ++m_next;
    if ( line.endsWith( QChar::CarriageReturn ) )
        line.chop( 1 );
    return line;
}

QString PimVCardTextStream::readAll()
{
    return atEnd() ? QString() : ReadTo( m_end );
}

QString PimVCardTextStream::ReadTo( const char* a_end )
{
    QString text;
    if ( IsInsidePair() )
        text += TakeLowSurrogate();
    else
        PassMarkOrHalf();
    // The decoder would skip a byte order mark here, where it is a character.
    while ( SkipByteOrderMark() )
        text += QChar( QChar::ByteOrderMark );
    text += QString::fromUtf8( m_next, static_cast<int>( a_end - m_next ) );
    m_next = a_end;
    return text;
}

} // namespace PimManager::vCard
