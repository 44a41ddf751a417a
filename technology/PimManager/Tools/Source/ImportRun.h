/// \file
/// The way of files through import to what is made of them.

#pragma once

#include "BookRun.h"
#include "BookTask.h"
#include "ImportOutput.h"

#include <QByteArray>
#include <QList>

#include <memory>
#include <vector>

namespace PimManager::vCard::Tools
{

/// Imports files one after the other, piece by piece, and hands everything to the outputs. Ctrl-C ends the reading: the
/// outputs are then ended as at the end of the last file.
class ImportRun : private BookTask
{
public:
    using Outputs = std::vector<std::unique_ptr<ImportOutput>>;

    /// \param a_console must outlive the run.
    /// \param a_outputs called in this order; may be empty.
    ImportRun( Console& a_console, const vCardImport::PimVCardImportOptions& a_options, Outputs a_outputs,
               BookRun::WithoutReader a_withoutReader );

    /// Runs once. Files that cannot be read are told, and so is what the outputs could not do.
    /// \return the worst status of all files and outputs; Interrupted after Ctrl-C.
    ExitStatus Run( const QList<QByteArray>& a_fileNames );

private:
    void BeginBook( const QString& a_source ) override;
    void ReadBook( InputDevice& a_input ) override;
    ExitStatus EndBook() override;

    template <typename Call>
    void ForEachOutput( Call a_call );
    bool OpenOutputs();
    bool AreOutputsReady();
    bool TakeCard( const vCardImport::PimVCardImportedCard& a_card );
    ExitStatus TellFailures( ExitStatus a_status );
    void TellResults();

    Console& m_console;
    const vCardImport::PimVCardImportOptions m_options;
    const Outputs m_outputs;
    BookRun m_run;
    ImportedBook m_book;
    // The last card whose END was missing; -1 before there is one.
    qint64 m_openCard = -1;
};

} // namespace PimManager::vCard::Tools
