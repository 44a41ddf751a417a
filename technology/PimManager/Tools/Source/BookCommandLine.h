/// \file
/// What the command lines of `import` and `check` have in common.

#pragma once

#include "CommandLine.h"
#include "Console.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace PimManager::vCard::Tools
{

/// The command line of a command that reads address books of any kind.
class BookCommandLine : public CommandLine
{
public:
    /// Has the options of every command, and `--charset`.
    /// \param a_command one word, such as `import`.
    BookCommandLine( const QString& a_command, const QString& a_description );

    /// Reads what the user wrote, and answers it if no file has to be read: help, version, or a mistake.
    /// \param a_helpTail the text below the options in the help.
    /// \return the exit status if the command is finished; nothing if there are files to read.
    std::optional<ExitStatus> ParseFor( Console& a_console, const QList<QByteArray>& a_arguments,
                                        const QString& a_helpTail );

    /// Reports wrong usage.
    ExitStatus Refuse( Console& a_console, const QString& a_reason ) const;

    /// \return the default character set that the user chose; without that option a_default.
    QByteArray CharsetOr( const QByteArray& a_default ) const;

private:
    const QString m_command;
};

} // namespace PimManager::vCard::Tools
