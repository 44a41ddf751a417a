/// \file
/// `pimvcard check`.

#pragma once

#include "Commands/CommandLine.h"
#include "Console.h"
#include "ExitStatus.h"

namespace PimManager::vCard::Tools
{

/// Reports everything that is unusual, repaired, dropped or refused, and what kinds of files they are.
/// \param a_line has at least one file name.
ExitStatus RunCheck( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::vCard::Tools
