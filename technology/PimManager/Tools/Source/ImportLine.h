/// \file
/// What the command lines of `import` and `check` have in common.

#pragma once

#include "CommandLine.h"
#include "Console.h"

#include "PimVCardImportOptions.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace PimManager::vCard::Tools
{

/// The command line of a command that imports.
class ImportLine : public CommandLine
{
public:
    /// Has the options of every command, and `--charset`.
    /// \param a_command one word, such as `import`.
    ImportLine( const QString& a_command, const QString& a_description );

    /// Reads what the user wrote, and answers when that needs no import: help, version, or a mistake.
    /// \param a_helpTail stands below the options in the help.
    /// \return the status of the command when it is done with that; nothing when there are files to import.
    std::optional<ExitStatus> ParseFor( Console& a_console, const QList<QByteArray>& a_arguments,
                                        const QString& a_helpTail );

    /// Tells that the command was called wrongly.
    ExitStatus Refuse( Console& a_console, const QString& a_reason ) const;

    /// \return the options of import that the user chose.
    vCardImport::PimVCardImportOptions ImportOptions() const;

private:
    const QString m_command;
};

} // namespace PimManager::vCard::Tools
