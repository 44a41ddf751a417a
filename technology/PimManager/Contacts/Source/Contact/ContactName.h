/// \file
/// Chooses the display name of a contact.

#pragma once

#include "Contact/NamedParts.h"
#include "Lines/PropertyTable.h"

#include <QByteArray>

#include <initializer_list>
#include <string_view>

namespace PimManager::Contacts
{

/// Takes the properties of a card in any order and keeps the best name: FN, else N in spoken order, else NICKNAME, ORG,
/// a mail address or a number. If a property occurs several times, the first one that is not empty is used.
class ContactName
{
public:
    void Clear();

    /// \return true if this property would be a better name than the current one.
    bool Wants( PropertyId a_source ) const { return a_source < m_source && a_source <= PropertyId::Tel; }

    /// Takes a name that Wants() has accepted.
    /// \param a_parts the parts to join with blanks. All white space becomes single blanks.
    void Take( PropertyId a_source, std::initializer_list<std::string_view> a_parts );

    /// Takes an N in spoken order: prefixes, given name, additional names, family name and suffixes.
    void TakeParts( const NamedParts& a_parts );

    /// The name. Empty if there is none.
    std::string_view Text();

private:
    // The name. Empty if it must be joined from m_parts.
    QByteArray m_text;
    // The parts of an N in spoken order. They are joined only on demand, because most cards also have an FN.
    QByteArray m_parts;
    QByteArray m_candidate;
    PropertyId m_source = PropertyId::Other;
};

} // namespace PimManager::Contacts
