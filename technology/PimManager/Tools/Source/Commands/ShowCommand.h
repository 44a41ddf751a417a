/// \file
/// `pimvcard show`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Prints everything that the cards hold.
/// \param a_line has at least one file name.
ExitStatus RunShow( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
