#include "Lines/LineScanner.h"

#include "Text/Bytes.h"

#include <QtAlgorithms>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace PimManager::Contacts
{

namespace
{

// As wide as a register of the target.
using Word = std::conditional_t<sizeof( size_t ) == sizeof( quint64 ), quint64, quint32>;

constexpr uint s_kByteBits = 8;

constexpr Word EachByte( uchar a_byte )
{
    return std::numeric_limits<Word>::max() / 0xFF * a_byte;
}

// The first byte is the lowest.
inline Word WordAt( const char* a_place )
{
    Word word = 0;
    std::memcpy( &word, a_place, sizeof( Word ) );
    return qFromLittleEndian( word );
}

// Has its high bit set for each byte below 0x20. A byte after one of them may be wrong, but none is missed.
inline Word ControlsOf( Word a_word )
{
    return ( a_word - EachByte( 0x20 ) ) & ~a_word & EachByte( 0x80 );
}

// The text before the first control character, or before the last few bytes if there is none.
struct PlainBytes
{
    const char* m_end = nullptr;
    bool m_isWide = false;
    bool m_hasControl = false;
};

inline PlainBytes PassWords( const char* a_begin, const char* a_end )
{
    Word bytes = 0;
    const char* place = a_begin;
    for ( ; static_cast<size_t>( a_end - place ) >= sizeof( Word ); place += sizeof( Word ) )
    {
        const Word word = WordAt( place );
        const Word controls = ControlsOf( word );
        if ( controls != 0 )
        {
            const uint before = qCountTrailingZeroBits( controls ) / s_kByteBits;
            bytes |= word & ( ( Word( 1 ) << ( s_kByteBits * before ) ) - 1 );
            return { place + before, ( bytes & EachByte( 0x80 ) ) != 0, true };
        }
        bytes |= word;
    }
    for ( ; place != a_end && static_cast<uchar>( *place ) >= 0x20; ++place )
        bytes |= static_cast<uchar>( *place );
    return { place, ( bytes & EachByte( 0x80 ) ) != 0, place != a_end };
}

} // namespace

#ifdef __SSE2__
// 16 bytes at a time. Stops at a line ending, or where less than that is left.
inline const char* LineEndSearch::PassVectors( const char* a_begin, const char* a_end )
{
    constexpr int s_kVectorBytes = 16;
    const __m128i blank = _mm_set1_epi8( ' ' );
    uint wide = 0;
    const char* place = a_begin;
    while ( a_end - place >= s_kVectorBytes )
    {
        const __m128i vector = _mm_loadu_si128( reinterpret_cast<const __m128i*>( place ) );
        const auto highBits = static_cast<uint>( _mm_movemask_epi8( vector ) );
        // Bytes are signed here, so those beyond ASCII are less than a blank, too.
        const auto less = static_cast<uint>( _mm_movemask_epi8( _mm_cmplt_epi8( vector, blank ) ) );
        const uint controls = less & ~highBits;
        if ( controls == 0 )
        {
            wide |= highBits;
            place += s_kVectorBytes;
            continue;
        }
        // Only the bytes before the control character count.
        const uint before = qCountTrailingZeroBits( controls );
        wide |= highBits & ( ( 1U << before ) - 1 );
        place += before;
        if ( IsLineEndByte( *place ) )
            break;
        m_hasControls = m_hasControls || IsControlByte( *place );
        ++place;
    }
    m_isWide = m_isWide || wide != 0;
    return place;
}
#endif

const char* LineEndSearch::Find( const char* a_begin, const char* a_end )
{
    const char* place = a_begin;
#ifdef __SSE2__
    place = PassVectors( a_begin, a_end );
    if ( place != a_end && IsLineEndByte( *place ) )
        return place;
#endif
    for ( ;; ++place )
    {
        const PlainBytes bytes = PassWords( place, a_end );
        m_isWide = m_isWide || bytes.m_isWide;
        place = bytes.m_end;
        if ( !bytes.m_hasControl || IsLineEndByte( *place ) )
            return place;
        m_hasControls = m_hasControls || IsControlByte( *place );
    }
}

PimContactLineEnd LineEndSearch::KindOf( const char* a_place, int a_length )
{
    if ( a_length == 3 )
        return PimContactLineEnd::CrCrLf;
    if ( a_length == 2 )
        return PimContactLineEnd::CrLf;
    return *a_place == '\n' ? PimContactLineEnd::Lf : PimContactLineEnd::Cr;
}

void LineScanner::Reset()
{
    *this = LineScanner();
}

void LineScanner::Append( std::string_view a_piece )
{
    if ( a_piece.empty() )
        return;
    char* const room = Room( a_piece.size() );
    if ( a_piece.size() == 1 )
        *room = a_piece.front();
    else
        std::memcpy( room, a_piece.data(), a_piece.size() );
    Grow( a_piece.size() );
}

char* LineScanner::Room( size_t a_size )
{
    if ( m_capacity - m_size < a_size )
        MakeRoom( a_size );
    return m_bytes + m_size;
}

// Bytes that are no longer needed are removed once they are half of the buffer, so each byte is moved once on average.
void LineScanner::MakeRoom( size_t a_size )
{
    const size_t left = m_size - m_kept;
    if ( m_kept >= left && m_capacity - left >= a_size )
        std::memmove( m_bytes, m_bytes + m_kept, left );
    else
    {
        const size_t least = left + a_size + std::max( left, a_size ) / 4;
        Reallocate( left, least + s_kCheckedBytes - least % s_kCheckedBytes );
    }
    m_bufferOffset += static_cast<qint64>( m_kept );
    m_next -= m_kept;
    m_searched -= m_kept;
    m_size = left;
    m_kept = 0;
}

void LineScanner::Reallocate( size_t a_left, size_t a_capacity )
{
    const auto capacity = static_cast<int>( a_capacity );
    if ( m_kept == 0 )
    {
        m_buffer.reserve( capacity );
        m_buffer.resize( capacity );
    }
    else
    {
        QByteArray buffer( capacity, Qt::Uninitialized );
        std::memcpy( buffer.data(), m_bytes + m_kept, a_left );
        m_buffer = std::move( buffer );
    }
    m_bytes = m_buffer.data();
    m_capacity = a_capacity;
}

bool LineScanner::Next( PhysicalLine& a_line )
{
    const char* const begin = m_bytes + m_next;
    const char* const end = m_bytes + m_size;
    const char* const place = m_search.Find( m_bytes + m_searched, end );
    m_searched = static_cast<size_t>( place - m_bytes );
    const int endLength = place == end ? 0 : LineEndSearch::LengthOfEnd( place, end, m_isFinished );
    if ( endLength == 0 && ( !m_isFinished || ( place == begin && !m_isLong ) ) )
        return false;

    a_line.m_offset = NextOffset();
    a_line.m_number = m_number++;
    a_line.m_lineOffset = m_lineOffset;
    a_line.m_length = place - begin;
    a_line.m_endLength = endLength;
    a_line.m_isWide = m_search.IsWide();
    a_line.m_hasControls = m_search.HasControls();
    a_line.m_isLong = m_isLong;
    if ( endLength > 0 )
        a_line.m_endKind = LineEndSearch::KindOf( place, endLength );
    m_next = m_searched = m_searched + static_cast<size_t>( endLength );
    m_search = LineEndSearch();
    m_isLong = false;
    m_lineOffset = NextOffset();
    return true;
}

void LineScanner::TakeOpen( qint64 a_length )
{
    m_next += static_cast<size_t>( a_length );
    m_isLong = true;
}

void LineScanner::PassLines( qint64 a_length, qint64 a_lines )
{
    m_next += static_cast<size_t>( a_length );
    m_searched = m_next;
    m_search = LineEndSearch();
    m_number += a_lines;
    m_lineOffset = NextOffset();
}

void LineScanner::Pass( qint64 a_length )
{
    m_next += static_cast<size_t>( a_length );
    m_searched = std::max( m_searched, m_next );
}

void LineScanner::Release( qint64 a_offset )
{
    m_kept = static_cast<size_t>( a_offset - m_bufferOffset );
}

PhysicalLine LineScanner::PartOf( const PhysicalLine& a_line, qint64 a_begin, qint64 a_end ) const
{
    PhysicalLine part = a_line;
    part.m_offset += a_begin;
    part.m_length = a_end - a_begin;
    part.m_endLength = a_end == a_line.m_length ? a_line.m_endLength : 0;
    const std::string_view text = TextOf( part );
    part.m_isWide = !std::all_of( text.begin(), text.end(), IsAsciiByte );
    part.m_hasControls = std::any_of( text.begin(), text.end(), IsControlByte );
    return part;
}

PhysicalLine LineScanner::LineAt( qint64 a_offset, qint64 a_end, qint64 a_number ) const
{
    const char* const begin = At( a_offset );
    const char* const end = At( a_end );
    LineEndSearch search;
    const char* const place = search.Find( begin, end );
    PhysicalLine line;
    line.m_offset = a_offset;
    line.m_lineOffset = a_offset;
    line.m_number = a_number;
    line.m_length = place - begin;
    line.m_endLength = place == end ? 0 : LineEndSearch::LengthOfEnd( place, end, true );
    line.m_isWide = search.IsWide();
    line.m_hasControls = search.HasControls();
    return line;
}

} // namespace PimManager::Contacts
