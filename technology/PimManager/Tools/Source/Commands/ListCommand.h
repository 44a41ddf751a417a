/// \file
/// `pimvcard list`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Prints a table of the contacts.
/// \param a_line has at least one file name.
ExitStatus RunList( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
