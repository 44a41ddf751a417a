/// \file
/// Finds words that are the same.

#pragma once

#include <QtGlobal>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Words in the order in which they were added, and which of them are the same in any letter case of ASCII. Takes
/// linear time; only words that were chosen to collide in its hash table are sorted. Keeps its memory.
///
/// \code
/// groups.Clear();
/// groups.Add( "HOME" );
/// groups.Add( "home" );
/// groups.Finish();
/// groups.Next( 0 ); // 1
/// \endcode
class WordGroups
{
public:
    static constexpr size_t s_kNone = ~static_cast<size_t>( 0 );

    void Clear();
    /// \param a_word must exist as long as it is in the groups.
    void Add( std::string_view a_word );
    /// Call this before the functions below.
    void Finish();

    size_t Size() const { return m_words.size(); }
    std::string_view Word( size_t a_index ) const { return m_words[a_index].m_text; }
    /// \return true for the first of several words that are the same.
    bool IsFirst( size_t a_index ) const { return m_words[a_index].m_isFirst; }
    /// \return the next word that is the same, or s_kNone.
    size_t Next( size_t a_index ) const { return m_words[a_index].m_next; }
    /// \return the first word that is the same as this one, or s_kNone.
    size_t Find( std::string_view a_word ) const;

private:
    struct Entry
    {
        std::string_view m_text;
        size_t m_next = s_kNone;
        bool m_isFirst = true;
    };

    // The first and the last of the words that are the same; empty if the first one is s_kNone.
    struct Slot
    {
        size_t m_first = s_kNone;
        size_t m_last = s_kNone;
    };

    void Link( size_t a_first, size_t a_second );
    void LinkToLast( size_t a_index );
    bool FillSlots();
    size_t FindSlot( std::string_view a_word, size_t& a_tries ) const;
    void Sort();
    size_t FindSorted( std::string_view a_word ) const;

    std::vector<Entry> m_words;
    // If there are many words: a hash table, or else the words sorted.
    std::vector<Slot> m_slots;
    std::vector<size_t> m_order;
};

} // namespace PimManager::Contacts
