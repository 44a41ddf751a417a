/// \file
/// Lists of dialling prefixes, made from texts at compile time.
///
/// The prefixes of a text stand between blanks, and are tried in this order. In a prefix, `n` is any digit. After `=`
/// stands the number of digits that must follow it: `0nn=10` is 0 and two digits before ten others.

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <string_view>

namespace PimManager::PhoneBook
{

/// A prefix such as 0 or 011.
struct Prefix
{
    /// \return true if digits begin with the prefix. An empty prefix begins nothing.
    bool StartsWith( std::string_view a_digits ) const
    {
        size_t size = 0;
        while ( size < m_size && size < a_digits.size() &&
                ( m_digits[size] == a_digits[size] || m_digits[size] == 'n' ) )
            ++size;
        return size == m_size && size > 0;
    }
    /// \return true if these digits can follow the prefix.
    bool IsBefore( std::string_view a_rest ) const
    {
        return !a_rest.empty() && a_rest.front() != '0' && ( m_rest == 0 || m_rest == a_rest.size() );
    }
    /// \return the next prefix of the list; nullptr after the last one.
    const Prefix* Next() const { return m_isLast ? nullptr : this + 1; }

    std::array<char, 5> m_digits;
    uchar m_size;
    // The number of digits that must follow; 0 if any may.
    uchar m_rest;
    bool m_isLast;
};

/// Lists of prefixes, one after the other.
template <size_t a_lists, size_t a_prefixes>
struct PrefixLists
{
    const Prefix* First( size_t a_list ) const { return &m_prefixes[m_begins[a_list]]; }

    std::array<uchar, a_lists> m_begins;
    std::array<Prefix, a_prefixes> m_prefixes;
};

/// \return the number of words. An empty text has one, which is empty.
template <size_t a_lists>
constexpr size_t CountWords( const std::array<std::string_view, a_lists>& a_texts )
{
    size_t count = a_lists;
    for ( const std::string_view text : a_texts )
    {
        for ( const char character : text )
            count += character == ' ' ? 1 : 0;
    }
    return count;
}

constexpr Prefix PrefixOf( std::string_view a_word )
{
    Prefix prefix{};
    for ( ; prefix.m_size < a_word.size() && a_word[prefix.m_size] != '='; ++prefix.m_size )
        prefix.m_digits[prefix.m_size] = a_word[prefix.m_size];
    for ( size_t place = prefix.m_size + 1U; place < a_word.size(); ++place )
        prefix.m_rest = static_cast<uchar>( prefix.m_rest * 10 + a_word[place] - '0' );
    return prefix;
}

/// \return a list for each text.
template <size_t a_prefixes, size_t a_lists>
constexpr PrefixLists<a_lists, a_prefixes> ListsOf( const std::array<std::string_view, a_lists>& a_texts )
{
    PrefixLists<a_lists, a_prefixes> lists{};
    size_t count = 0;
    for ( size_t list = 0; list < a_lists; ++list )
    {
        lists.m_begins[list] = static_cast<uchar>( count );
        std::string_view rest = a_texts[list];
        do
        {
            const size_t size = std::min( rest.find( ' ' ), rest.size() );
            lists.m_prefixes[count++] = PrefixOf( rest.substr( 0, size ) );
            rest.remove_prefix( std::min( size + 1, rest.size() ) );
        } while ( !rest.empty() );
        lists.m_prefixes[count - 1].m_isLast = true;
    }
    return lists;
}

} // namespace PimManager::PhoneBook
