/// \file
/// Chooses what to call a contact.

#pragma once

#include "Contact/NamedParts.h"
#include "Lines/PropertyTable.h"

#include <QByteArray>

#include <initializer_list>
#include <string_view>

namespace PimManager::Contacts
{

/// Takes the properties of a card in any order and keeps the best name: FN, else N in the order of speech, else
/// NICKNAME, ORG, a mail address or a number. Of several properties of a name, the first one that is not empty counts.
class ContactName
{
public:
    void Clear();

    /// \return true if a property of this name would be a better name than what there is.
    bool Wants( PropertyId a_source ) const { return a_source < m_source && a_source <= PropertyId::Tel; }

    /// Takes a name that Wants() has accepted.
    /// \param a_parts are joined by blanks; all white space becomes single blanks.
    void Take( PropertyId a_source, std::initializer_list<std::string_view> a_parts );

    /// Takes an N in the order of speech: prefixes, given name, additional names, family name and suffixes.
    void TakeParts( const NamedParts& a_parts );

    /// Empty if there is none.
    std::string_view Text();

private:
    // Empty if it must be made of m_parts.
    QByteArray m_text;
    // Of an N, in the order of speech: most cards have an FN as well, and need no name of them.
    QByteArray m_parts;
    QByteArray m_candidate;
    PropertyId m_source = PropertyId::Other;
};

} // namespace PimManager::Contacts
