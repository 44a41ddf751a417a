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
/// \return AllGiven if both were read without loss and have the same contacts. SomeRefused if they differ or a part was
///         left out. Trouble after an error; then no difference is printed.
ExitStatus RunDiff( const CommandLine& a_line, Console& a_console );

} // namespace PimManager::Tools
