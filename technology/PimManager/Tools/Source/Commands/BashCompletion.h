/// \file
/// The completion for bash.

#pragma once

#include "Commands/CommandTable.h"

#include <QByteArray>

#include <vector>

namespace PimManager::Tools
{

/// \return a script that completes commands, options, their values, and the names of address books.
/// \param a_commands not empty; the first one is used if the user names none.
/// \param a_common   the options that every command has in addition to its own.
QByteArray BashCompletion( const std::vector<CommandInfo>& a_commands, const std::vector<OptionInfo>& a_common );

} // namespace PimManager::Tools
