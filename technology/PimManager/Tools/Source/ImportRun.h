/// \file
/// The way of files through import to what is made of them.

#pragma once

#include "Console.h"
#include "ExitStatus.h"
#include "ImportOutput.h"
#include "Progress.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>

#include <memory>
#include <vector>

namespace PimManager::vCard::Tools
{

class InputDevice;

/// Imports files one after the other, piece by piece, and hands everything to the outputs. Ctrl-C ends the reading: the
/// outputs are then ended as at the end of the last file. When standard output is a terminal and standard error is one,
/// a line on it shows how far the work is.
class ImportRun
{
public:
    using Outputs = std::vector<std::unique_ptr<ImportOutput>>;

    /// When to stop early.
    enum class WithoutReader
    {
        Stop, ///< Nothing is made but standard output: end when nobody reads it any more.
        GoOn
    };

    /// \param a_console must outlive the run.
    /// \param a_outputs called in this order; may be empty.
    ImportRun( Console& a_console, const vCardImport::PimVCardImportOptions& a_options, Outputs a_outputs,
               WithoutReader a_withoutReader );
    ~ImportRun();
    Q_DISABLE_COPY( ImportRun )

    /// Runs once. Files that cannot be read are told, and so is what the outputs could not do.
    /// \return the worst status of all files and outputs; Interrupted after Ctrl-C.
    ExitStatus Run( const QList<QByteArray>& a_fileNames );

private:
    template <typename Call>
    void ForEachOutput( Call a_call );
    ExitStatus ImportFile( const QByteArray& a_fileName );
    ExitStatus ImportInput( InputDevice& a_input );
    void Import( InputDevice& a_input );
    void TakeDiagnostic( const vCardImport::PimVCardDiagnostic& a_diagnostic );
    bool TakeCard( const vCardImport::PimVCardImportedCard& a_card );
    ExitStatus RefuseFile( const QString& a_reason );
    ExitStatus Finish( ExitStatus a_status );
    ExitStatus TellFailures( ExitStatus a_status );
    void TellResults();
    bool IsOver() const;
    void ShowProgress( const InputDevice& a_input );

    Console& m_console;
    const vCardImport::PimVCardImportOptions m_options;
    const Outputs m_outputs;
    const bool m_stopsWithoutReader;
    Progress m_progress;
    QElapsedTimer m_timer;
    ImportedBook m_book;
    qint64 m_cards = 0;
    // The last card whose END was missing; -1 before there is one.
    qint64 m_openCard = -1;
    // Of the files before this one, and of all files; 0 when that cannot be told.
    qint64 m_bytesBefore = 0;
    qint64 m_allBytes = 0;
};

} // namespace PimManager::vCard::Tools
