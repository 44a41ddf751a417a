/// \file
/// Makes the index for find as you type.

#pragma once

#include "Search/ContactWords.h"
#include "Search/SearchIndex.h"
#include "Search/WordCollector.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QString>

#include <vector>

namespace PimManager::PhoneBook
{

class NameOrder;
class NumberStore;

/// Reads the lines of one card after another and makes a SearchIndex of them.
class SearchIndexBuilder
{
public:
    explicit SearchIndexBuilder( const PimPhoneBookOptions& a_options ) :
        m_options( a_options )
    {
    }

    /// Adds a line of a card. Numbers may be left out.
    void AddLine( const Contacts::PimContactLine& a_line ) { m_contact.Add( a_line ); }

    /// Ends a card: it is the next contact of the book.
    void EndCard( const Contacts::PimContactCard& a_card );

    /// \param a_numbers the numbers of all contacts; must outlive the index.
    /// \param a_index the index of the contacts that were added.
    void Build( const NumberStore& a_numbers, SearchIndex& a_index );

private:
    void Sort( SearchIndex& a_index );
    static void AddSections( const std::vector<int>& a_sections, const NameOrder& a_order, SearchIndex& a_index );

    PimPhoneBookOptions m_options;
    ContactWords m_contact;
    WordCollector m_words;
    std::vector<QString> m_sortNames;
};

} // namespace PimManager::PhoneBook
