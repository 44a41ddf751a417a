/// \file
/// The way of files through the reader to what `pimvcard check` prints.

#pragma once

#include "BookRun.h"
#include "BookTask.h"
#include "CheckOutput.h"

#include <PimManager/Contacts/PimContactOptions.h>
#include <PimManager/Contacts/PimContactReader.h>

#include <QByteArray>
#include <QList>

#include <vector>

namespace PimManager::vCard::Tools
{

/// Reads files one after the other, piece by piece, with one card in memory. Ctrl-C ends the reading: what is known by
/// then about the cards read completely is printed.
class CheckRun : private BookTask
{
public:
    /// \param a_console must outlive the run.
    /// \param a_output  must outlive the run.
    CheckRun( Console& a_console, const Contacts::PimContactOptions& a_options, CheckOutput& a_output );

    /// Runs once. Files that cannot be read are reported.
    /// \return the worst status of all files; Interrupted after Ctrl-C.
    ExitStatus Run( const QList<QByteArray>& a_fileNames );

private:
    void BeginBook( const QString& a_source ) override;
    void ReadBook( InputDevice& a_input ) override;
    ExitStatus EndBook() override;

    Console& m_console;
    CheckOutput& m_output;
    BookRun m_run;
    Contacts::PimContactReader m_reader;
    std::vector<char> m_piece;
    bool m_isReadToEnd = false;
};

} // namespace PimManager::vCard::Tools
