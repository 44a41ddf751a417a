/// \file
/// Pairs of contacts with the same UID or X-BT-UID.

#pragma once

#include "Changes/BookPairing.h"
#include "Changes/ContentMatches.h"

namespace PimManager::PhoneBook
{

/// Pairs free contacts that have the same identifier. Of several ones, those with equal content come first, then those
/// with equal names, then the order of the books counts.
/// \param a_identifier an index in IdentifierNames(). The identifiers of the pairing were read.
void PairByIdentifier( BookPairing& a_pairing, ContentMatches& a_contents, size_t a_identifier,
                       PimPhoneBookBasis a_basis );

} // namespace PimManager::PhoneBook
