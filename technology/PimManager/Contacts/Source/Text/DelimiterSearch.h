/// \file
/// Finds the delimiters of a value.

#pragma once

#include "Text/EightBytes.h"

#include <QtAlgorithms>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// Iterates over the positions of two bytes in a text. It examines eight bytes at once.
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
        m_first( EachByte( a_first ) ),
        m_second( EachByte( a_second ) )
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
            m_word = m_next;
            const quint64 word = WordAt( m_next );
            m_matches = ZeroBytesOf( word ^ m_first ) | ZeroBytesOf( word ^ m_second );
            m_next += sizeof( quint64 );
        }
        m_place = m_word + qCountTrailingZeroBits( m_matches ) / s_kByteBits;
        m_matches &= m_matches - 1;
        return true;
    }

    size_t Place() const { return m_place; }

private:
    static constexpr uint s_kByteBits = 8;
    static constexpr quint64 s_kLowBits = ~s_kHighBits;

    static constexpr quint64 EachByte( char a_byte ) { return s_kOnes * static_cast<uchar>( a_byte ); }

    /// \return a word with the high bit of each byte that is zero, and no others.
    static quint64 ZeroBytesOf( quint64 a_word )
    {
        return ~( ( ( a_word & s_kLowBits ) + s_kLowBits ) | a_word | s_kLowBits );
    }

    // The first byte is the lowest. NUL follows the text, and it is not a delimiter.
    quint64 WordAt( size_t a_place ) const
    {
        return FirstEight( std::string_view( m_text.data() + a_place, m_text.size() - a_place ) );
    }

    std::string_view m_text;
    quint64 m_first;
    quint64 m_second;
    size_t m_next = 0;
    // The start of the last word, and its remaining positions.
    size_t m_word = 0;
    quint64 m_matches = 0;
    size_t m_place = 0;
};

} // namespace PimManager::Contacts
