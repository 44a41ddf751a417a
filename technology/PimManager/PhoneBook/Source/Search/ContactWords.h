/// \file
/// The words by which a contact is found, and the name by which it is sorted.

#pragma once

#include "Search/FoldedText.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <QString>

namespace PimManager::PhoneBook
{

/// Reads the texts of one contact after another.
///
/// Most cards have one N, FN, NICKNAME and ORG without anything unusual. Then only these lines are read, which takes a
/// third of the time.
class ContactWords
{
public:
    /// Adds a line of the card.
    void Add( const Contacts::PimContactLine& a_line );

    /// Ends the card. Linear in the length of the card.
    /// \return PimContact::SortName(); or for PimPhoneBookSorting::GivenName, the given name and the family name if it
    ///         has any.
    QString Finish( const Contacts::PimContactCard& a_card, PimPhoneBookSorting a_sorting );

    /// Begins the next card.
    void Clear();

    /// The words of N, of the pronunciation and maiden name, of FN and of nicknames, in all languages of the card. If
    /// there are none of these and no organisation, those of the name that is shown for the contact.
    const FoldedText& Names() const { return m_names; }

    /// The words of organisations and their units, in all languages of the card.
    const FoldedText& Organisations() const { return m_organisations; }

private:
    void AddFurtherNames( const Contacts::PimContact& a_contact );

    FoldedText m_names;
    FoldedText m_organisations;
    // The text of the first N and FN.
    QString m_name;
    QString m_formattedName;
    int m_namesRead = 0;
};

} // namespace PimManager::PhoneBook
