/// \file
/// The program behind its `main`.

#pragma once

#include "Console.h"
#include "ExitStatus.h"

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::Tools
{

/// Finds the command that the user wants and runs it. Options may stand before and behind the command's name.
/// \param a_arguments without the program's own name.
ExitStatus RunProgram( const QList<QByteArray>& a_arguments, Console& a_console );

} // namespace PimManager::vCard::Tools
