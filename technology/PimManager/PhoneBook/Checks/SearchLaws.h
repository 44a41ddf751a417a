/// \file
/// What must be true of everything that is found in a phone book. Tests and fuzzers check it.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QString>

#include <string>

namespace PimManager::PhoneBook::Checks
{

/// Looks up a number and a text, and each number and name of the book itself.
/// \return the first law that is broken in English; empty if all hold.
std::string BrokenSearchLaw( const Contacts::PimContactBook& a_book, const QString& a_number, const QString& a_text );

} // namespace PimManager::PhoneBook::Checks
