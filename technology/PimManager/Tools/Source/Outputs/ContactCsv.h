/// \file
/// Contacts as CSV.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/CsvColumns.h"
#include "Outputs/CsvLosses.h"
#include "Outputs/OutputFile.h"

#include <QByteArray>

#include <vector>

namespace PimManager::Tools
{

/// Writes a row with the names of the columns, and a row for each contact, as soon as it is read, and reports what has
/// no column. Rows end in CR LF.
class ContactCsv : public BookOutput
{
public:
    /// The first two parameters are those of OutputFile.
    /// \param a_hasMark begins with a byte order mark, by which spreadsheet programs recognise UTF-8.
    /// \param a_console must outlive the output.
    ContactCsv( const QByteArray& a_fileName, OutputClaims& a_claims, std::vector<const CsvColumn*> a_columns,
                bool a_hasMark, Console& a_console );

    void Begin() override;
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;
    void Abandon() override { m_file.Abandon(); }
    void Fail( const QString& a_reason ) override { m_file.Fail( a_reason ); }
    QStringList Failures() const override;
    QString Result() const override;

private:
    OutputFile m_file;
    const std::vector<const CsvColumn*> m_columns;
    const bool m_hasMark;
    Console& m_console;
    CsvLosses m_losses;
    qint64 m_rows = 0;
    QByteArray m_row;
};

} // namespace PimManager::Tools
