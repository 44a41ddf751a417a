/// \file
/// The way of files through the reader to what is made of them.

#pragma once

#include "Charsets/GuessedCharset.h"
#include "Outputs/BookOutput.h"
#include "Reading/BookOptions.h"
#include "Reading/BookRun.h"
#include "Reading/BookTask.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <QByteArray>
#include <QList>

#include <memory>
#include <optional>
#include <vector>

namespace PimManager::Tools
{

/// Reads files one after the other, piece by piece, with one card in memory, and passes everything on to the outputs.
/// Ctrl-C ends the reading: cards that were read completely are delivered, and the outputs are ended as at the end of
/// the last file.
class ContactRun : private BookTask
{
public:
    using Outputs = std::vector<std::unique_ptr<BookOutput>>;

    /// \param a_console must outlive the run.
    /// \param a_outputs are called in this order.
    ContactRun( Console& a_console, const BookOptions& a_options, Outputs a_outputs,
                BookRun::WithoutReader a_withoutReader );

    /// Runs once. Reports files that cannot be read, and what the outputs could not do.
    /// \return the worst status of all files and outputs; Interrupted after Ctrl-C.
    ExitStatus Run( const QList<QByteArray>& a_fileNames );

private:
    void BeginBook( const QString& a_source ) override;
    void ReadBook( InputDevice& a_input ) override;
    ExitStatus EndBook() override;

    template <typename Call>
    void ForEachOutput( Call a_call );
    void BeginReading( const Contacts::PimContactOptions& a_options );
    void SetHandlers();
    void Feed( QIODevice& a_input );
    void ReportCharset();
    bool OpenOutputs();
    bool AreOutputsReady();
    ExitStatus ReportFailures( ExitStatus a_status );
    void ReportResults();

    Console& m_console;
    const BookOptions m_options;
    const Outputs m_outputs;
    BookRun m_run;
    BookInRun m_book;
    std::unique_ptr<Contacts::PimContactReader> m_reader;
    // Empty if the user has chosen a character set.
    std::optional<GuessedCharset> m_charset;
    std::vector<char> m_piece;
};

} // namespace PimManager::Tools
