/// \file
/// Runs commands as a reader of the documents would.

#pragma once

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Documents
{

/// The output and the exit status of a command.
struct ShellRun
{
    /// -1 if it could not be run.
    int m_status = -1;
    QString m_out;
    QString m_err;
};

/// Runs a command of bash, with pipefail.
/// \param a_command   the command for `bash -c`.
/// \param a_folder    the folder in which it runs; empty for that of the test.
/// \param a_arguments the arguments, from `$1` on.
ShellRun RunInShell( const QString& a_command, const QString& a_folder = QString(),
                     const QStringList& a_arguments = QStringList() );

} // namespace PimManager::vCard::Documents
