#include "Text/WordGroups.h"

#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

// Up to this number, comparing all pairs is faster.
constexpr size_t s_kFew = 8;
// Words that were not chosen to collide hardly ever need this many.
constexpr size_t s_kMostTries = 100;

size_t HashOf( std::string_view a_word )
{
    quint32 hash = 2166136261U;
    for ( const char byte : a_word )
        hash = ( hash ^ static_cast<uchar>( Upper( byte ) ) ) * 16777619U;
    return hash ^ hash >> 15U;
}

// In any order of words, as long as it is the same for all.
bool IsBefore( std::string_view a_left, std::string_view a_right )
{
    if ( a_left.size() != a_right.size() )
        return a_left.size() < a_right.size();
    const auto different =
        std::mismatch( a_left.begin(), a_left.end(), a_right.begin(),
                       []( char a_first, char a_second ) { return Upper( a_first ) == Upper( a_second ); } );
    return different.first != a_left.end() && Upper( *different.first ) < Upper( *different.second );
}

} // namespace

void WordGroups::Clear()
{
    m_words.clear();
    m_slots.clear();
    m_order.clear();
}

void WordGroups::Add( std::string_view a_word )
{
    m_words.push_back( { a_word } );
}

void WordGroups::Finish()
{
    if ( m_words.size() > s_kFew )
    {
        if ( !FillSlots() )
            Sort();
        return;
    }
    for ( size_t i = 1; i < m_words.size(); ++i )
        LinkToLast( i );
}

/// \return false if too many words collide.
bool WordGroups::FillSlots()
{
    size_t size = 4 * s_kFew;
    while ( size < 2 * m_words.size() )
        size *= 2;
    m_slots.assign( size, Slot() );
    for ( size_t i = 0; i < m_words.size(); ++i )
    {
        size_t tries = 0;
        Slot& slot = m_slots[FindSlot( m_words[i].m_text, tries )];
        if ( tries > s_kMostTries )
            return false;
        if ( slot.m_first == s_kNone )
            slot.m_first = i;
        else
            Link( slot.m_last, i );
        slot.m_last = i;
    }
    return true;
}

/// \return the slot of a word, or the empty one where it would be.
size_t WordGroups::FindSlot( std::string_view a_word, size_t& a_tries ) const
{
    const size_t mask = m_slots.size() - 1;
    size_t slot = HashOf( a_word ) & mask;
    for ( ; m_slots[slot].m_first != s_kNone; slot = ( slot + 1 ) & mask )
    {
        ++a_tries;
        if ( IsSameWord( m_words[m_slots[slot].m_first].m_text, a_word ) )
            break;
    }
    return slot;
}

void WordGroups::LinkToLast( size_t a_index )
{
    for ( size_t i = a_index; i-- > 0; )
    {
        if ( !IsSameWord( m_words[i].m_text, m_words[a_index].m_text ) )
            continue;
        Link( i, a_index );
        return;
    }
}

void WordGroups::Sort()
{
    m_slots.clear();
    m_order.resize( m_words.size() );
    for ( size_t i = 0; i < m_order.size(); ++i )
    {
        m_order[i] = i;
        m_words[i] = { m_words[i].m_text };
    }
    std::stable_sort( m_order.begin(), m_order.end(),
                      [this]( size_t a_left, size_t a_right )
                      { return IsBefore( m_words[a_left].m_text, m_words[a_right].m_text ); } );
    for ( size_t i = 1; i < m_order.size(); ++i )
    {
        if ( IsSameWord( m_words[m_order[i - 1]].m_text, m_words[m_order[i]].m_text ) )
            Link( m_order[i - 1], m_order[i] );
    }
}

void WordGroups::Link( size_t a_first, size_t a_second )
{
    m_words[a_first].m_next = a_second;
    m_words[a_second].m_isFirst = false;
}

size_t WordGroups::Find( std::string_view a_word ) const
{
    if ( !m_order.empty() )
        return FindSorted( a_word );
    if ( !m_slots.empty() )
    {
        size_t tries = 0;
        return m_slots[FindSlot( a_word, tries )].m_first;
    }
    const auto same = std::find_if( m_words.begin(), m_words.end(),
                                    [a_word]( const Entry& a_entry ) { return IsSameWord( a_entry.m_text, a_word ); } );
    return same == m_words.end() ? s_kNone : static_cast<size_t>( same - m_words.begin() );
}

size_t WordGroups::FindSorted( std::string_view a_word ) const
{
    const auto found = std::lower_bound( m_order.begin(), m_order.end(), a_word,
                                         [this]( size_t a_index, std::string_view a_wanted )
                                         { return IsBefore( m_words[a_index].m_text, a_wanted ); } );
    return found != m_order.end() && IsSameWord( m_words[*found].m_text, a_word ) ? *found : s_kNone;
}

} // namespace PimManager::Contacts
