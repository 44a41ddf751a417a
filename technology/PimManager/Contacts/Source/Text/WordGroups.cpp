#include "Text/WordGroups.h"

#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

// Up to this number, comparing each with each is faster.
constexpr size_t s_kFew = 8;

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
        Sort();
        return;
    }
    for ( size_t i = 1; i < m_words.size(); ++i )
        LinkToLast( i );
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
    m_order.resize( m_words.size() );
    for ( size_t i = 0; i < m_order.size(); ++i )
        m_order[i] = i;
    std::sort( m_order.begin(), m_order.end(),
               [this]( size_t a_left, size_t a_right )
               {
                   const std::string_view left = m_words[a_left].m_text;
                   const std::string_view right = m_words[a_right].m_text;
                   return IsBefore( left, right ) || ( a_left < a_right && !IsBefore( right, left ) );
               } );
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
    if ( m_order.empty() )
    {
        const auto same =
            std::find_if( m_words.begin(), m_words.end(),
                          [a_word]( const Entry& a_entry ) { return IsSameWord( a_entry.m_text, a_word ); } );
        return same == m_words.end() ? s_kNone : static_cast<size_t>( same - m_words.begin() );
    }
    const auto found = std::lower_bound( m_order.begin(), m_order.end(), a_word,
                                         [this]( size_t a_index, std::string_view a_wanted )
                                         { return IsBefore( m_words[a_index].m_text, a_wanted ); } );
    return found != m_order.end() && IsSameWord( m_words[*found].m_text, a_word ) ? *found : s_kNone;
}

} // namespace PimManager::Contacts
