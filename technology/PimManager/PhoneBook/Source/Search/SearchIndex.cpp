#include "Search/SearchIndex.h"

#include <algorithm>
#include <utility>

namespace PimManager::PhoneBook
{

QString SearchIndex::Section( int a_contact ) const
{
    const quint32 rank = m_ranks.at( static_cast<size_t>( a_contact ) );
    const auto next = std::upper_bound( m_sections.begin(), m_sections.end(), rank,
                                        []( quint32 a_rank, const SectionBegin& a_section )
                                        { return a_rank < a_section.m_firstRank; } );
    return ( next - 1 )->m_label;
}

QVector<PimPhoneBookMatch> SearchIndex::Find( const std::vector<SearchedWords>& a_ways,
                                              const QVector<int>& a_recent ) const
{
    WordMatches word( Contacts() );
    if ( a_ways.empty() )
    {
        for ( int rank = 0; rank < Contacts(); ++rank )
            word.m_wholeName.Add( static_cast<quint32>( rank ) );
        word.m_name = word.m_wholeName;
    }
    PlaceMatches matches( word );
    for ( const SearchedWords& words : a_ways )
        matches.Or( MatchesOf( words ) );
    QVector<PimPhoneBookMatch> result( matches.UpTo( PlaceMatches::s_kPlaces - 1 ).Size() );
    PimPhoneBookMatch* next = result.data();
    for ( size_t place = 0; place < PlaceMatches::s_kPlaces; ++place )
        next = WritePlace( matches, place, a_recent, next );
    return result;
}

PlaceMatches SearchIndex::MatchesOf( const SearchedWords& a_words ) const
{
    PlaceMatches matches = MatchesOf( a_words.m_words.front() );
    ContactSet named = matches.Named();
    for ( size_t i = 1; i < a_words.m_words.size() && !matches.IsEmpty(); ++i )
    {
        const PlaceMatches word = MatchesOf( a_words.m_words[i] );
        named |= word.Named();
        matches.And( word );
    }
    if ( a_words.m_needsName )
        matches.And( named );
    return matches;
}

PlaceMatches SearchIndex::MatchesOf( const SearchedWord& a_word ) const
{
    WordMatches matches( Contacts() );
    for ( const std::string& beginning : a_word.m_beginnings )
        m_words.Find( beginning, matches );
    for ( const std::string& keys : a_word.m_keys )
        m_words.FindByKeys( keys, matches );
    for ( const std::string& digits : a_word.m_digits )
        m_numbers.Find( digits, matches.m_number );
    for ( const std::string& beginning : a_word.m_numberBeginnings )
        m_numbers.FindBeginning( beginning, matches.m_number );
    return PlaceMatches( matches );
}

PimPhoneBookMatch* SearchIndex::WritePlace( const PlaceMatches& a_matches, size_t a_place, const QVector<int>& a_recent,
                                            PimPhoneBookMatch* a_next ) const
{
    ContactSet contacts = a_matches.UpTo( a_place );
    for ( size_t better = 0; better < a_place; ++better )
        contacts.Remove( a_matches.UpTo( better ) );
    const auto place = static_cast<PimPhoneBookPlace>( a_place );
    for ( const int contact : a_recent )
    {
        const quint32 rank = m_ranks[static_cast<size_t>( contact )];
        if ( !contacts.Has( rank ) )
            continue;
        contacts.Remove( rank );
        *a_next++ = { contact, place };
    }
    const int* const sorted = m_sorted.constData();
    contacts.ForEach( [&]( quint32 a_rank ) { *a_next++ = { sorted[a_rank], place }; } );
    return a_next;
}

size_t SearchIndex::Bytes() const
{
    return static_cast<size_t>( m_sorted.capacity() ) * sizeof( int ) + m_ranks.capacity() * sizeof( quint32 ) +
           m_sections.capacity() * sizeof( SectionBegin ) + m_words.Bytes() + m_numbers.Bytes();
}

} // namespace PimManager::PhoneBook
