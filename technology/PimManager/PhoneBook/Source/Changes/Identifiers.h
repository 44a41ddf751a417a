/// \file
/// The lines that identify a contact and do not describe it: UID and X-BT-UID.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QLatin1String>
#include <QList>
#include <QString>

#include <array>

namespace PimManager::PhoneBook
{

constexpr size_t s_kIdentifiers = 2;
/// The index of UID.
constexpr size_t s_kUidIdentifier = 0;

/// The names of the lines, the most reliable one first.
const QList<QLatin1String>& IdentifierNames();

/// The values of the lines in the order of IdentifierNames(), in lower case and without `urn:uuid:`. Empty if there is
/// none that is not empty.
using Identifiers = std::array<QString, s_kIdentifiers>;

/// Reads all identifiers of a card.
Identifiers IdentifiersOf( const Contacts::PimContactCard& a_card );

/// \return the names of the identifiers that do not count when two cards are compared: those that not both of them
/// have.
QList<QLatin1String> IgnoredIdentifiers( const Identifiers& a_first, const Identifiers& a_second );

/// \return the contact of a card without some of the identifiers.
Contacts::PimContact ContactWithout( const Contacts::PimContactCard& a_card,
                                     const QList<QLatin1String>& a_identifiers );

/// \return true if two contacts are equal apart from some identifiers.
bool AreEqualWithout( const Contacts::PimContactCard& a_first, const Contacts::PimContactCard& a_second,
                      const QList<QLatin1String>& a_identifiers );

} // namespace PimManager::PhoneBook
