/// \file
/// Contacts as vCards or jCards, each in a file.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/OutputFolder.h"
#include "Outputs/WriteLosses.h"

#include <PimManager/Contacts/PimContactWriter.h>

#include <QByteArray>

namespace PimManager::Tools
{

/// Writes each contact into a file of its own, named after it, see OutputFolder.
class CardFolder : public BookOutput
{
public:
    /// The first two parameters are those of OutputFolder.
    /// \param a_console must outlive the output.
    CardFolder( const QByteArray& a_folder, const OutputClaims& a_claims, Contacts::PimContactFormat a_format,
                Console& a_console );

    void Open() override { m_folder.Open(); }
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;
    QStringList Failures() const override;
    QString Result() const override;

private:
    OutputFolder m_folder;
    const Contacts::PimContactFormat m_format;
    Console& m_console;
    WriteLosses m_losses;
};

} // namespace PimManager::Tools
