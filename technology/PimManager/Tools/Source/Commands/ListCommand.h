/// \file
/// `pimvcard list`.

#pragma once

#include "Commands/CommandLine.h"
#include "Console.h"
#include "ExitStatus.h"

namespace PimManager::vCard::Tools
{

/// Prints a table of the contacts.
/// \param a_line has at least one file name.
ExitStatus RunList( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::vCard::Tools
