/// \file
/// The lines that identify a contact and do not describe it: UID and X-BT-UID.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QLatin1String>
#include <QList>
#include <QString>

namespace PimManager::PhoneBook
{

/// The names of the lines, the most reliable one first.
const QList<QLatin1String>& IdentifierNames();

/// \return the first value that is not empty, in lower case and without `urn:uuid:`. Empty if there is none.
QString IdentifierOf( const Contacts::PimContactCard& a_card, QLatin1String a_name );

inline QString UidOf( const Contacts::PimContactCard& a_card )
{
    return IdentifierOf( a_card, IdentifierNames().constFirst() );
}

/// \return which identifiers the card has: a bit for each of IdentifierNames(), the first one lowest.
size_t IdentifiersOf( const Contacts::PimContactCard& a_card );

/// \return the identifiers that do not count when two cards are compared: those that not both of them have.
QList<QLatin1String> IgnoredIdentifiers( const Contacts::PimContactCard& a_first,
                                         const Contacts::PimContactCard& a_second );

/// \return the contact of a card without some of the identifiers.
Contacts::PimContact ContactWithout( const Contacts::PimContactCard& a_card,
                                     const QList<QLatin1String>& a_identifiers );

/// \return true if two contacts are equal, apart from identifiers that do not count.
bool AreEqualContacts( const Contacts::PimContactCard& a_first, const Contacts::PimContactCard& a_second );

/// \return true if two contacts are equal apart from their identifiers.
bool AreEqualButForIdentifiers( const Contacts::PimContactCard& a_first, const Contacts::PimContactCard& a_second );

} // namespace PimManager::PhoneBook
