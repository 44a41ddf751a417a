/// \file
/// What the commands that search address books have in common.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Outputs/FoundTable.h"
#include "Terminal/Console.h"

#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

namespace PimManager::Tools
{

/// \return what a search looks for: the last argument.
QByteArray WantedText( const CommandLine& a_line );

/// Reads `--region`. Names are sorted in the same way in every locale.
/// \param[out] a_options the options of a phone book.
/// \return what is wrong, safe for a terminal; empty if nothing is.
QString ReadSearchOptions( const CommandLine& a_line, PhoneBook::PimPhoneBookOptions& a_options );

/// Searches the books of a command line, all arguments but the last one, and prints a table of what is found.
/// \return AllGiven if a contact is found, and SomeRefused if none is.
ExitStatus PrintFound( const CommandLine& a_line, Console& a_console, FoundTable::Grades a_grades,
                       const FoundTable::Search& a_search );

} // namespace PimManager::Tools
