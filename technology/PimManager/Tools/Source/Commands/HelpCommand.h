/// \file
/// `pimvcard help`.

#pragma once

#include "Commands/CommandLine.h"
#include "ExitStatus.h"
#include "Terminal/Console.h"

#include <QByteArray>
#include <QString>

namespace PimManager::Tools
{

/// \return what `pimvcard --help` shows: all commands, and the options that all of them have.
QString OverviewText( const Screen& a_screen );

/// \return the usage, the options and the arguments of a command.
QString CommandText( const CommandInfo& a_command, const Screen& a_screen );

/// Explains the command that the user named, or all of them.
ExitStatus RunHelp( const CommandLine& a_line, Console& a_console );

/// Reports a word that is neither a command nor a file, and which command may have been meant.
ExitStatus RefuseCommand( const QByteArray& a_word, Console& a_console );

} // namespace PimManager::Tools
