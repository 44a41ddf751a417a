/// \file
/// A card as a contact list shows it.

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace PimManager::vCard
{
class PimVCard;
class PimVCardProperty;
} // namespace PimManager::vCard

namespace PimManager::vCard::Tools
{

/// A number or an address, and what it is for.
struct ContactEntry
{
    QString m_text;
    /// In upper case, as in `CELL`; what every entry is, such as INTERNET for a mail address, is not said.
    QStringList m_types;
    /// What the user of the address book called it; empty when nothing was written.
    QString m_label;
    /// From 1, the most wanted, to 100; 0 for none.
    int m_preference = 0;
};

/// What is shown of a card. The texts are decoded and otherwise as the card wrote them: of any length, and not safe for
/// a terminal or a page.
struct Contact
{
    /// Never empty: `(no name)` when the card has none.
    QString m_name;
    QList<ContactEntry> m_numbers;
    QList<ContactEntry> m_mails;
    /// The first ORG, its units joined by commas; empty when there is none.
    QString m_organisation;
};

/// \return what a list shows of the card. Entries without a text are left out. Linear in the length of the card.
Contact ReadContact( const PimVCard& a_card );

/// \return a property as text for people: a number without `tel:`, an address in lines, the time of a call, several
///         values joined by commas, where empty ones are left out.
QString ReadableTextOf( const PimVCardProperty& a_property );

/// \return a property with what it is for.
ContactEntry EntryOf( const PimVCard& a_card, const PimVCardProperty& a_property );

/// \return what an entry is for in a few words, such as `boat phone` or `cell, work`; empty when nothing was said.
QString PurposeOf( const ContactEntry& a_entry );

} // namespace PimManager::vCard::Tools
