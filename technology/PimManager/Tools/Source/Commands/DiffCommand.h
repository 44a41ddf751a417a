/// \file
/// `pimvcard diff`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

namespace PimManager::Tools
{

/// Prints what changed between two address books.
/// \param a_line has two file names.
/// \return AllGiven if they have the same contacts, and SomeRefused if they differ.
ExitStatus RunDiff( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
