/// \file
/// Pairs of contacts with the same name and number.

#pragma once

#include "Changes/BookPairing.h"

namespace PimManager::PhoneBook
{

/// Pairs free contacts by name and number or mail address, and then by a name that only they have. The options say how
/// numbers are compared.
void PairByName( BookPairing& a_pairing, const PimPhoneBookOptions& a_options );

} // namespace PimManager::PhoneBook
