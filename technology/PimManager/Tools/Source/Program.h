/// \file
/// The program behind its `main`.

#pragma once

#include "ExitStatus.h"
#include "Terminal/Console.h"

#include <QByteArray>
#include <QList>

namespace PimManager::Tools
{

/// Finds the command that the user wants and runs it. Options may precede the name of the command or follow it. Without
/// a command, the files are listed.
/// \param a_arguments without the program's own name.
ExitStatus RunProgram( const QList<QByteArray>& a_arguments, Console& a_console );

} // namespace PimManager::Tools
