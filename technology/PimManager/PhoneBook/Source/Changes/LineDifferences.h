/// \file
/// The lines that differ between two cards.

#pragma once

#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

namespace PimManager::PhoneBook
{

/// See PimPhoneBookChanges::LinesOf().
PimPhoneBookLines DifferentLines( const Contacts::PimContactCard& a_old, const Contacts::PimContactCard& a_new );

} // namespace PimManager::PhoneBook
