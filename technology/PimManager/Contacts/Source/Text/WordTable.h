/// \file
/// Finds words in a table that is built at compile time.

#pragma once

#include "Text/Bytes.h"

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// A word in upper case and its meaning.
template <typename Value>
struct WordRow
{
    std::string_view m_word;
    Value m_value;
};

/// Words and their meanings. A search compares with words of the same length only.
///
/// \code
/// constexpr WordTable s_kTable( std::array{ WordRow<int>{ "ONE", 1 }, WordRow<int>{ "TWO", 2 } } );
/// const WordRow<int>* row = s_kTable.Find( "two" );
/// \endcode
template <typename Value, size_t s_kSize>
class WordTable
{
public:
    /// \param a_rows in any order. HasAllWords() is false if a word is too long for the table.
    constexpr explicit WordTable( const std::array<WordRow<Value>, s_kSize>& a_rows ) :
        m_rows( a_rows )
    {
        size_t count = 0;
        for ( size_t length = 0; length <= s_kLongest; ++length )
        {
            m_begins[length] = count;
            for ( const WordRow<Value>& row : a_rows )
            {
                if ( row.m_word.size() == length )
                    m_rows[count++] = row;
            }
        }
        m_begins[s_kLongest + 1] = count;
    }

    constexpr bool HasAllWords() const { return m_begins.back() == s_kSize; }

    /// \param a_word in any letter case.
    /// \return nullptr for an unknown word.
    const WordRow<Value>* Find( std::string_view a_word ) const
    {
        if ( a_word.size() > s_kLongest )
            return nullptr;
        for ( size_t row = m_begins[a_word.size()]; row < m_begins[a_word.size() + 1]; ++row )
        {
            if ( IsSameWord( m_rows[row].m_word, a_word ) )
                return &m_rows[row];
        }
        return nullptr;
    }

    /// \return the meaning of a word in any letter case, or a_unknown.
    Value Of( std::string_view a_word, Value a_unknown ) const
    {
        const WordRow<Value>* const row = Find( a_word );
        return row == nullptr ? a_unknown : row->m_value;
    }

private:
    static constexpr size_t s_kLongest = 32;

    // Sorted by length. The position of the first row of each length.
    std::array<WordRow<Value>, s_kSize> m_rows;
    std::array<size_t, s_kLongest + 2> m_begins{};
};

} // namespace PimManager::Contacts
