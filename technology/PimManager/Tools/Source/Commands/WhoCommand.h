/// \file
/// `pimvcard who`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Prints a table of the contacts that have a telephone number.
/// \param a_line has at least one file name, and behind them the number.
ExitStatus RunWho( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
