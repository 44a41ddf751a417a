/// \file
/// Contacts as a page for a browser.

#pragma once

#include "ImportOutput.h"
#include "Outputs/OutputFile.h"

#include <QList>

namespace PimManager::vCard::Tools
{

/// Writes one page that needs nothing beside itself: contacts with their pictures, a search, and what became of each
/// file with its diagnostics. Contacts are written as they come; what is kept are the accounts, with the diagnostics
/// that they hold.
///
/// What a card says is shown as text, see ToHtmlText(). Pictures are shown only when RasterTypeOf() knows them.
class ContactPage : public ImportOutput
{
public:
    /// The parameters are those of OutputFile.
    ContactPage( const QByteArray& a_fileName, OutputClaims& a_claims );

    void Begin() override;
    void BeginBook( const ImportedBook& a_book ) override;
    void TakeCard( const ImportedBook& a_book, const vCardImport::PimVCardImportedCard& a_card ) override;
    void EndBook( const ImportedBook& a_book ) override;
    void End() override;
    void Fail( const QString& a_reason ) override { m_file.Fail( a_reason ); }
    QStringList Failures() const override;

private:
    OutputFile m_file;
    QList<ImportedBook> m_books;
};

} // namespace PimManager::vCard::Tools
