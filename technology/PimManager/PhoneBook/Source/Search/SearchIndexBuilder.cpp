#include "Search/SearchIndexBuilder.h"

#include "Sorting/NameOrder.h"

#include <algorithm>
#include <utility>

namespace PimManager::PhoneBook
{

void SearchIndexBuilder::EndCard( const Contacts::PimContactCard& a_card )
{
    const auto contact = static_cast<quint32>( m_sortNames.size() );
    m_sortNames.push_back( m_contact.Finish( a_card, m_options.Sorting() ) );
    m_words.Add( contact, m_contact.Names(), false );
    m_words.Add( contact, m_contact.Organisations(), true );
    m_contact.Clear();
}

void SearchIndexBuilder::Build( const NumberStore& a_numbers, SearchIndex& a_index )
{
    Sort( a_index );
    m_words.Sort();
    a_index.m_words.Build( m_words, a_index.m_ranks );
    m_words = WordCollector();
    a_index.m_numbers.Build( a_numbers, a_index.m_sorted );
}

void SearchIndexBuilder::Sort( SearchIndex& a_index )
{
    NameOrder order( m_options.Locale() );
    std::vector<int> sections;
    sections.reserve( m_sortNames.size() );
    for ( const QString& name : m_sortNames )
        sections.push_back( order.SectionOf( name ) );
    const std::vector<int> sorted = SortedNames( m_sortNames, sections, order );
    m_sortNames = {};
    a_index.m_sorted.reserve( static_cast<int>( sorted.size() ) );
    a_index.m_ranks.resize( sorted.size() );
    for ( const int contact : sorted )
    {
        a_index.m_ranks[static_cast<size_t>( contact )] = static_cast<quint32>( a_index.m_sorted.size() );
        a_index.m_sorted.append( contact );
    }
    AddSections( sections, order, a_index );
}

void SearchIndexBuilder::AddSections( const std::vector<int>& a_sections, const NameOrder& a_order,
                                      SearchIndex& a_index )
{
    int last = -1;
    for ( const int contact : std::as_const( a_index.m_sorted ) )
    {
        const auto place = static_cast<size_t>( contact );
        if ( a_sections[place] != last )
            a_index.m_sections.push_back( { a_index.m_ranks[place], a_order.Label( a_sections[place] ) } );
        last = a_sections[place];
    }
}

} // namespace PimManager::PhoneBook
