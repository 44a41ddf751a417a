/// \file
/// What the commands that read address books have in common.

#pragma once

#include "Commands/CommandLine.h"
#include "Outputs/BookOutput.h"
#include "Reading/BookOptions.h"
#include "Terminal/Console.h"

#include <QString>

#include <memory>

namespace PimManager::Tools
{

/// Reads `--charset` and the limits.
/// \param[out] a_options what the user chose.
/// \return what is wrong with them, safe for a terminal; empty if nothing is. For an unknown character set this is a
///         list of those that are known.
QString ReadBookOptions( const CommandLine& a_line, BookOptions& a_options );

/// Reads books into an output on standard output, and sums up.
/// \param a_books  the names of the files.
/// \param a_output writes to a_console.Out().
ExitStatus PrintBooks( const CommandLine& a_line, Console& a_console, const QList<QByteArray>& a_books,
                       std::unique_ptr<BookOutput> a_output );

/// Reports wrong usage of a command.
/// \return the exit status for it.
ExitStatus RefuseUsage( Console& a_console, const CommandLine& a_line, const QString& a_reason );

} // namespace PimManager::Tools
