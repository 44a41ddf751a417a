/// \file
/// What is to know about a contact besides how to reach it.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QString>
#include <QStringList>

#include <vector>

namespace PimManager::Tools
{

/// A fact with its name, such as `Birthday: 3 February 1985`. Nothing in it is safe for HTML.
struct ContactFact
{
    QString m_label;
    QString m_text;
    /// Where the fact is from.
    Contacts::PimContactField m_field;
    /// What it is for, see UsesOf(), without what the label says.
    QStringList m_uses;
    /// What the text says in other words, as the card says it: `de` for `German`.
    QString m_alsoSaid;
    /// True if the text says all of the value in other words.
    bool m_isWhole = false;
};

/// \return the facts in the order in which people want them: names, days, people, what the contact is and likes. Linear
///         in the length of the card.
std::vector<ContactFact> FactsOf( const Contacts::PimContact& a_contact );

} // namespace PimManager::Tools
