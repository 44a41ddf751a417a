#include "PimVCardPreparation.h"

#include "PimVCardVocabularyBytes.h"

#include <QString>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace PimManager::vCard
{

namespace
{

constexpr quint64 s_kHighBits = 0x8080808080808080;
constexpr int s_kWord = sizeof( quint64 );
constexpr int s_kByteOrderMarkLength = 3;

quint64 WordAt( const char* a_place )
{
    return qFromLittleEndian<quint64>( a_place );
}

// The first byte that may begin a line break: below 0x0E, or not ASCII.
const char* FindBreakCandidate( const char* a_begin, const char* a_end )
{
    const char* place = a_begin;
    for ( ; a_end - place >= s_kWord; place += s_kWord )
    {
        const quint64 word = WordAt( place );
        const quint64 found = ( ( word - 0x0E0E0E0E0E0E0E0E ) | word ) & s_kHighBits;
        if ( found != 0 )
            return place + qCountTrailingZeroBits( found ) / 8;
    }
    while ( place != a_end && static_cast<uchar>( *place ) >= 0x0E && static_cast<uchar>( *place ) < 0x80 )
        ++place;
    return place;
}

// The length of the line break that begins here. 0 if there is none. The text is UTF-8, so no character is incomplete.
int LineBreakLength( const char* a_place, const char* a_end )
{
    switch ( static_cast<uchar>( *a_place ) )
    {
    case '\r':
        return a_end - a_place > 1 && a_place[1] == '\n' ? 2 : 1;
    case '\n':
    case '\v':
    case '\f':
        return 1;
    case 0xC2:
        return a_place[1] == '\x85' ? 2 : 0;
    case 0xE2:
        return a_place[1] == '\x80' && ( a_place[2] == '\xA8' || a_place[2] == '\xA9' ) ? 3 : 0;
    default:
        return 0;
    }
}

const char* SkipBlanks( const char* a_begin, const char* a_end )
{
    const PimVCardVocabularyBytes& bytes = PimVCardVocabularyBytes::Get();
    return std::find_if_not( a_begin, a_end, [&bytes]( char a_byte ) { return bytes.IsBlank( a_byte ); } );
}

const char* SkipAscii( const char* a_begin, const char* a_end )
{
    const char* place = a_begin;
    while ( a_end - place >= s_kWord && ( WordAt( place ) & s_kHighBits ) == 0 )
        place += s_kWord;
    while ( place != a_end && static_cast<uchar>( *place ) < 0x80 )
        ++place;
    return place;
}

// The length of the non-ASCII character that begins here. 0 if it is malformed (RFC 3629, section 4).
int CharacterLength( const char* a_place, const char* a_end )
{
    const auto byteAt = [=]( int a_offset )
    { return a_offset < a_end - a_place ? static_cast<uchar>( a_place[a_offset] ) : uchar( 0 ); };
    const auto isTail = [&byteAt]( int a_offset ) { return ( byteAt( a_offset ) & 0xC0U ) == 0x80; };
    const uchar lead = byteAt( 0 );
    const uchar second = byteAt( 1 );
    if ( lead < 0xC2 || lead > 0xF4 || !isTail( 1 ) )
        return 0;
    if ( lead < 0xE0 )
        return 2;
    if ( ( lead == 0xE0 && second < 0xA0 ) || ( lead == 0xED && second > 0x9F ) || !isTail( 2 ) )
        return 0;
    if ( lead < 0xF0 )
        return 3;
    if ( ( lead == 0xF0 && second < 0x90 ) || ( lead == 0xF4 && second > 0x8F ) || !isTail( 3 ) )
        return 0;
    return 4;
}

bool IsUtf8( const char* a_begin, const char* a_end )
{
    for ( const char* place = SkipAscii( a_begin, a_end ); place != a_end; place = SkipAscii( place, a_end ) )
    {
        const int length = CharacterLength( place, a_end );
        if ( length == 0 )
            return false;
        place += length;
    }
    return true;
}

/// Copies a text without the pieces that are cut.
class Copier
{
public:
    Copier( const char* a_begin, const char* a_end ) :
        m_copied( a_begin ),
        m_end( a_end )
    {
    }

    /// True if a piece was cut.
    bool HasCut() const { return m_to != nullptr; }

    /// The end of the last piece that was cut.
    const char* LastCut() const { return m_copied; }

    void Cut( const char* a_begin, const char* a_end )
    {
        CopyTo( a_begin );
        m_copied = a_end;
    }

    // The replaced piece is longer than a blank.
    void ReplaceByBlank( const char* a_begin, const char* a_end )
    {
        Cut( a_begin, a_end );
        *m_to++ = PimVCardVocabularyBytes::Get().m_blank;
    }

    QByteArray Finish()
    {
        CopyTo( m_end );
        m_text.truncate( static_cast<int>( m_to - m_text.constData() ) );
        return m_text;
    }

private:
    void CopyTo( const char* a_end )
    {
        if ( m_to == nullptr )
        {
            m_text = QByteArray( static_cast<int>( m_end - m_copied ), Qt::Uninitialized );
            m_to = m_text.data();
        }
        const auto length = static_cast<size_t>( a_end - m_copied );
        std::memcpy( m_to, m_copied, length );
        m_to += length;
    }

    const char* m_copied;
    const char* m_end;
    QByteArray m_text;
    char* m_to = nullptr;
};

// The length of an encoded line break and the soft line break after it. 0 if none begins here.
qint64 EncodedBreakLength( const char* a_place, const char* a_end )
{
    const PimVCardWord& text = PimVCardVocabularyBytes::Get().m_encodedBreak;
    if ( a_end - a_place <= text.Length() || *a_place != *text.Bytes() || !text.IsAt( a_place ) )
        return 0;
    const int breakLength = LineBreakLength( a_place + text.Length(), a_end );
    return breakLength == 0 ? 0 : text.Length() + breakLength;
}

// Skips the blanks at the start of a line, including those that replace encoded line breaks.
const char* SkipIndent( const char* a_begin, const char* a_end )
{
    const char* place = SkipBlanks( a_begin, a_end );
    while ( const qint64 length = EncodedBreakLength( place, a_end ) )
        place = SkipBlanks( place + length, a_end );
    return place;
}

// Bytes that the array does not own may be freed before the array.
bool IsWholeAndOwned( const QByteArray& a_data, const char* a_begin, const char* a_end )
{
    return a_data.capacity() != 0 && a_begin == a_data.constData() && a_end == a_begin + a_data.size();
}

// Does both in one pass, as if the encoded breaks were joined first and the folds removed after. The piece is part of
// the array.
QByteArray JoinLines( const QByteArray& a_data, const char* a_begin, const char* a_end )
{
    const char equals = PimVCardVocabularyBytes::Get().m_equals;
    const int encodedBreak = PimVCardVocabularyBytes::Get().m_encodedBreak.Length();
    Copier copier( a_begin, a_end );
    const char* place = FindBreakCandidate( a_begin, a_end );
    while ( place != a_end )
    {
        const int breakLength = LineBreakLength( place, a_end );
        const char* next = place + std::max( breakLength, 1 );
        if ( breakLength != 0 && ( place == a_begin || place[-1] != equals ) )
        {
            const char* const text = SkipIndent( next, a_end );
            if ( text != next )
                copier.Cut( place, text );
            next = text;
        }
        else if ( breakLength != 0 && place - copier.LastCut() >= encodedBreak &&
                  EncodedBreakLength( place - encodedBreak, a_end ) != 0 )
        {
            next = SkipBlanks( next, a_end );
            copier.ReplaceByBlank( place - encodedBreak, next );
        }
        place = FindBreakCandidate( next, a_end );
    }
    return !copier.HasCut() && IsWholeAndOwned( a_data, a_begin, a_end ) ? a_data : copier.Finish();
}

} // namespace

QByteArray PreparedText( const QByteArray& a_data )
{
    const char* const begin = a_data.constData();
    const auto* const nul =
        static_cast<const char*>( std::memchr( begin, '\0', static_cast<size_t>( a_data.size() ) ) );
    const char* const end = nul != nullptr ? nul : begin + a_data.size();
    if ( !IsUtf8( begin, end ) )
    {
        const QByteArray repaired = QString::fromUtf8( begin, static_cast<int>( end - begin ) ).toUtf8();
        return JoinLines( repaired, repaired.constData(), repaired.constData() + repaired.size() );
    }
    const bool hasMark = end - begin >= s_kByteOrderMarkLength && std::memcmp( begin, "\xEF\xBB\xBF", 3 ) == 0;
    return JoinLines( a_data, hasMark ? begin + s_kByteOrderMarkLength : begin, end );
}

} // namespace PimManager::vCard
