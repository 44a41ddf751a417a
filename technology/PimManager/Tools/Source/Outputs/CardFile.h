/// \file
/// Contacts as vCards or jCards in one file.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/OutputFile.h"
#include "Outputs/WriteLosses.h"

#include <PimManager/Contacts/PimContactWriter.h>

#include <QByteArray>

namespace PimManager::Tools
{

/// Writes each contact as soon as it is read, and reports what the format could not say.
class CardFile : public BookOutput
{
public:
    /// The first two parameters are those of OutputFile.
    /// \param a_console must outlive the output.
    CardFile( const QByteArray& a_fileName, OutputClaims& a_claims, Contacts::PimContactFormat a_format,
              Console& a_console );

    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;
    void Abandon() override { m_file.Abandon(); }
    void Fail( const QString& a_reason ) override { m_file.Fail( a_reason ); }
    QStringList Failures() const override;
    QString Result() const override { return Failures().isEmpty() ? m_losses.Result() : QString(); }

private:
    OutputFile m_file;
    Contacts::PimContactWriter m_writer;
    Console& m_console;
    WriteLosses m_losses;
};

} // namespace PimManager::Tools
