/// \file
/// Ascending lists of contacts in little memory.

#pragma once

#include "Search/ContactSet.h"

#include <QtGlobal>

#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

/// A fixed number of lists of ranks. A list has the distances between its ranks, seven bits in a byte, so that most
/// ranks take one byte.
///
/// The lists are written in two passes, which add the same ranks: the first one measures the lists.
class RankLists
{
public:
    explicit RankLists( size_t a_lists = 0 ) :
        m_begins( a_lists + 1 ),
        m_next( a_lists )
    {
    }

    /// First pass: adds a rank to a list. The ranks of a list ascend; one that is equal to the last one is not added
    /// again.
    void Measure( size_t a_list, quint32 a_rank )
    {
        quint32 distance = 0;
        if ( Step( a_list, a_rank, distance ) )
            m_begins[a_list] += distance < s_kMark ? 1 : SizeOf( distance );
    }

    /// Ends the first pass.
    void Reserve();

    /// Second pass: adds a rank to a list.
    void Write( size_t a_list, quint32 a_rank )
    {
        quint32 distance = 0;
        if ( !Step( a_list, a_rank, distance ) )
            return;
        quint32& place = m_begins[a_list];
        for ( ; distance >= s_kMark; distance >>= s_kBits )
            m_bytes[place++] = static_cast<char>( distance | s_kMark );
        m_bytes[place++] = static_cast<char>( distance );
    }

    /// Ends the second pass.
    void Finish();

    /// Adds the ranks of a list to a set.
    void AddTo( ContactSet& a_ranks, size_t a_list ) const;

    /// The memory in bytes.
    size_t Bytes() const { return m_bytes.capacity() + m_begins.capacity() * sizeof( quint32 ); }

private:
    static constexpr uint s_kBits = 7;
    static constexpr uint s_kMark = 1U << s_kBits;

    static quint32 SizeOf( quint32 a_distance );

    bool Step( size_t a_list, quint32 a_rank, quint32& a_distance )
    {
        quint32& next = m_next[a_list];
        if ( next == a_rank + 1 )
            return false;
        a_distance = a_rank - next;
        next = a_rank + 1;
        return true;
    }

    std::string m_bytes;
    // In the first pass the size of each list, in the second one the place of its next byte, and then its begin.
    std::vector<quint32> m_begins;
    // For each list, the rank after its last one. Empty after the second pass.
    std::vector<quint32> m_next;
};

} // namespace PimManager::PhoneBook
