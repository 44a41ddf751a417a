/// \file
/// Finds the delimiters of a value.

#pragma once

#include "Text/EightBytes.h"

#include <QtAlgorithms>
#include <QtGlobal>

#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace PimManager::Contacts
{

#ifdef __SSE2__
/// Finds two bytes, none of which is NUL, in 16 bytes at once.
class DelimiterBlock
{
public:
    static constexpr size_t s_kBytes = 16;
    /// A bit for each byte, the first one lowest.
    using Matches = uint;

    DelimiterBlock( char a_first, char a_second ) :
        m_first( _mm_set1_epi8( a_first ) ),
        m_second( _mm_set1_epi8( a_second ) )
    {
    }

    /// \return the matches in the bytes from a position on, which is less than the length of the text.
    Matches In( std::string_view a_text, size_t a_place ) const
    {
        if ( a_text.size() < s_kBytes )
            return In( _mm_set_epi64x( Eight( a_text, s_kWord ), Eight( a_text, 0 ) ) ) >> a_place;
        // The last bytes overlap those before.
        const size_t place = std::min( a_place, a_text.size() - s_kBytes );
        return In( _mm_loadu_si128( reinterpret_cast<const __m128i*>( a_text.data() + place ) ) ) >>
               ( a_place - place );
    }
    static size_t PlaceOfFirst( Matches a_matches ) { return qCountTrailingZeroBits( a_matches ); }

private:
    static qint64 Eight( std::string_view a_text, size_t a_place )
    {
        return static_cast<qint64>( FirstEight( a_text.substr( std::min( a_place, a_text.size() ) ) ) );
    }
    Matches In( __m128i a_bytes ) const
    {
        const __m128i matches = _mm_or_si128( _mm_cmpeq_epi8( a_bytes, m_first ), _mm_cmpeq_epi8( a_bytes, m_second ) );
        return static_cast<Matches>( _mm_movemask_epi8( matches ) );
    }

    __m128i m_first;
    __m128i m_second;
};
#else
/// Finds two bytes, none of which is NUL, in eight bytes at once.
class DelimiterBlock
{
public:
    static constexpr size_t s_kBytes = s_kWord;
    /// The high bit of each byte, the first one lowest.
    using Matches = quint64;

    DelimiterBlock( char a_first, char a_second ) :
        m_first( s_kOnes * static_cast<uchar>( a_first ) ),
        m_second( s_kOnes * static_cast<uchar>( a_second ) )
    {
    }

    /// \return the matches in the bytes from a position on, which is less than the length of the text.
    Matches In( std::string_view a_text, size_t a_place ) const
    {
        const quint64 word = FirstEight( std::string_view( a_text.data() + a_place, a_text.size() - a_place ) );
        return ZeroBytesOf( word ^ m_first ) | ZeroBytesOf( word ^ m_second );
    }
    static size_t PlaceOfFirst( Matches a_matches ) { return qCountTrailingZeroBits( a_matches ) / s_kByteBits; }

private:
    static constexpr uint s_kByteBits = 8;
    static constexpr quint64 s_kLowBits = ~s_kHighBits;

    // The high bit of each byte that is zero, and no others.
    static quint64 ZeroBytesOf( quint64 a_word )
    {
        return ~( ( ( a_word & s_kLowBits ) + s_kLowBits ) | a_word | s_kLowBits );
    }

    quint64 m_first;
    quint64 m_second;
};
#endif

/// Iterates over the positions of two bytes, none of which is NUL, in a text.
///
/// \code
/// for ( DelimiterSearch search( "a;b,c", ';', ',' ); search.Next(); )
///     qInfo() << search.Place(); // 1, 3
/// \endcode
class DelimiterSearch
{
public:
    /// \param a_text must outlive the search.
    DelimiterSearch( std::string_view a_text, char a_first, char a_second ) :
        m_text( a_text ),
        m_delimiters( a_first, a_second )
    {
    }

    /// \return false after the last position; Place() is then the end of the text.
    bool Next()
    {
        while ( m_matches == 0 )
        {
            if ( m_next >= m_text.size() )
            {
                m_place = m_text.size();
                return false;
            }
            m_block = m_next;
            m_matches = m_delimiters.In( m_text, m_block );
            m_next += DelimiterBlock::s_kBytes;
        }
        m_place = m_block + DelimiterBlock::PlaceOfFirst( m_matches );
        m_matches &= m_matches - 1;
        return true;
    }

    size_t Place() const { return m_place; }

private:
    std::string_view m_text;
    DelimiterBlock m_delimiters;
    size_t m_next = 0;
    // The start of the last block, and its remaining positions.
    size_t m_block = 0;
    DelimiterBlock::Matches m_matches = 0;
    size_t m_place = 0;
};

} // namespace PimManager::Contacts
