/// \file
/// A number for the content of lines, to find equal cards among many.

#pragma once

#include "Text/EightBytes.h"

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// Hashes texts. Who does not know the seed can hardly make different texts with the same number, but it is no
/// cryptographic hash.
class ContentHasher
{
public:
    explicit ContentHasher( quint64 a_seed ) :
        m_seed( a_seed * s_kFirst ),
        m_factor( a_seed | 1U )
    {
    }

    /// Begins a new text.
    void Clear() { m_hash = m_seed; }
    /// Adds a part of the text. Parts have ends: "a" and "bc" are not "ab" and "c".
    void Add( std::string_view a_part )
    {
        AddEights( a_part, []( quint64 a_eight ) { return a_eight; } );
    }
    /// The same with the letters of ASCII in upper case.
    void AddUpper( std::string_view a_part ) { AddEights( a_part, UpperOfEight ); }
    void Add( quint64 a_number )
    {
        // With one factor, texts that differ in the highest bits would have the same number for each seed.
        m_hash = ( m_hash ^ a_number ) * m_factor;
        m_hash = ( m_hash << 29U | m_hash >> 35U ) * s_kSecond;
    }

    quint64 Result() const { return m_hash ^ m_hash >> 32U; }

private:
    // Odd numbers with as many set bits as others.
    static constexpr quint64 s_kFirst = 0xD6E8FEB86659FD93U;
    static constexpr quint64 s_kSecond = 0x9E3779B97F4A7C15U;

    // The last eight bytes may overlap with those before them.
    template <typename Change>
    void AddEights( std::string_view a_part, Change a_change )
    {
        const quint64 size = a_part.size();
        if ( size < s_kWord )
        {
            Add( a_change( FirstEight( a_part ) ) + size * s_kFirst );
            return;
        }
        const char* const last = a_part.data() + size - s_kWord;
        for ( const char* place = a_part.data(); place < last; place += s_kWord )
            Add( a_change( WordAt( place ) ) );
        Add( a_change( WordAt( last ) ) + size * s_kFirst );
    }

    quint64 m_seed;
    quint64 m_factor;
    quint64 m_hash = 0;
};

} // namespace PimManager::Contacts
