/// \file
/// `pimvcard convert`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Writes the contacts in another format, their pictures, and what was left out.
/// \param a_line has at least one file name.
ExitStatus RunConvert( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
