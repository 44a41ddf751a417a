/// \file
/// `pimvcard check`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Reports everything that is unusual, repaired, dropped or refused, and what kinds of files they are.
/// \param a_line has at least one file name.
ExitStatus RunCheck( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
