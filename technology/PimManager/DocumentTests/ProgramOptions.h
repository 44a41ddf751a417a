/// \file
/// What the program says of its own commands and options.

#pragma once

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Documents
{

/// The commands that the program has.
QStringList ProgramCommands();

/// \param a_command empty for the program without a command.
/// \return the options that its help names, such as `-h` and `--help`, sorted.
QStringList ProgramOptions( const QString& a_command );

} // namespace PimManager::vCard::Documents
