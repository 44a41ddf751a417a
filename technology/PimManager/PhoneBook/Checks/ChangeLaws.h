/// \file
/// What must be true of the changes between any two books. Tests and fuzzers check it.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <string>

namespace PimManager::PhoneBook::Checks
{

/// Compares the books in both directions, applies the changes to the old book, and compares it with the new one.
/// \return the first law that is broken in English; empty if all hold.
std::string BrokenChangeLaw( const Contacts::PimContactBook& a_old, const Contacts::PimContactBook& a_new );

} // namespace PimManager::PhoneBook::Checks
