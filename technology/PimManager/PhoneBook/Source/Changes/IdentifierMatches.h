/// \file
/// Pairs of contacts with the same UID or X-BT-UID.

#pragma once

#include "Changes/BookPairing.h"
#include "Changes/ContentMatches.h"

#include <QLatin1String>

namespace PimManager::PhoneBook
{

/// Pairs free contacts that have the same identifier. Of several ones, those with equal content come first, then those
/// with equal names, then the order of the books counts.
void PairByIdentifier( BookPairing& a_pairing, ContentMatches& a_contents, QLatin1String a_identifier,
                       PimPhoneBookBasis a_basis );

} // namespace PimManager::PhoneBook
