/// \file
/// `pimvcard show`.

#pragma once

#include "Commands/CommandLine.h"
#include "Console.h"
#include "ExitStatus.h"

namespace PimManager::vCard::Tools
{

/// Prints everything that the cards hold.
/// \param a_line has at least one file name.
ExitStatus RunShow( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::vCard::Tools
