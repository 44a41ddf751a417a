/// \file
/// `pimvcard find`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Prints a table of the contacts that contain a text.
/// \param a_line has at least one file name, and behind them the text.
ExitStatus RunFind( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
