/// \file
/// Pairs of contacts with the same name and number.

#pragma once

#include "Changes/BookPairing.h"

namespace PimManager::PhoneBook
{

/// Pairs free contacts by name and number or mail address, and then by a name that only they have.
/// \param a_endingDigits the number of last digits that count.
void PairByName( BookPairing& a_pairing, int a_endingDigits );

} // namespace PimManager::PhoneBook
