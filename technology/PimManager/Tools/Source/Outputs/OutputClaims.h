/// \file
/// The places that the outputs of one run go to.

#pragma once

#include "Outputs/AtomicFile.h"
#include "Outputs/FileIdentity.h"
#include "Outputs/OutputTarget.h"
#include "Terminal/Console.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <set>

namespace PimManager::Tools
{

/// Keeps two outputs of a run out of the same file, and every output out of the files that are read.
class OutputClaims
{
public:
    /// \param a_console  must outlive the claims.
    /// \param a_inputs   the names of the files that are read; `-` is standard input.
    /// \param a_existing what the outputs do to existing files.
    OutputClaims( Console& a_console, const QList<QByteArray>& a_inputs, Existing a_existing = Existing::Keep );

    /// Claims standard output for the results of a command. If that is not possible, reports it.
    /// \return false if it is not possible.
    bool ClaimResults();

    /// Claims a target for one output.
    /// \return why the output cannot go there; empty if it can.
    QString Claim( const OutputTarget& a_target );

    /// \return true if this file is an input, or an output has claimed it.
    bool IsUsed( const FileIdentity& a_file ) const;

    /// \return true if all outputs go to standard output, and there is one.
    bool HasOnlyStandardOutput() const { return m_hasStandardOutput && !m_hasFiles; }

    OutputDevice& StandardOutput() const { return m_console.Out(); }
    Existing GetExisting() const { return m_existing; }

private:
    Console& m_console;
    const Existing m_existing;
    std::set<FileIdentity> m_inputs;
    std::set<FileIdentity> m_outputs;
    bool m_hasStandardOutput = false;
    bool m_hasFiles = false;
};

} // namespace PimManager::Tools
