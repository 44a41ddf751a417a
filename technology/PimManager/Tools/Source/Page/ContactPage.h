/// \file
/// Contacts as a page for a browser.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/OutputFile.h"
#include "Page/SortedPieces.h"

#include <QList>

namespace PimManager::Tools
{

/// Writes one page that needs no other file: contacts with their pictures in the order of their names, letters to jump
/// by, a search, and what became of each file with the findings.
///
/// The page is written at the end. Until then contacts are in a temporary file, see SortedPieces, and the reports are
/// kept.
///
/// Everything that a card says is on the page, as text, see ToHtmlText(). Pictures are shown only if RasterTypeOf()
/// returns a type.
class ContactPage : public BookOutput
{
public:
    /// The parameters are those of OutputFile.
    ContactPage( const QByteArray& a_fileName, OutputClaims& a_claims );

    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void EndBook( const BookInRun& a_book ) override { m_books << a_book; }
    void End() override;
    void Abandon() override { m_file.Abandon(); }
    void Fail( const QString& a_reason ) override { m_file.Fail( a_reason ); }
    QStringList Failures() const override;

private:
    void WritePage( QIODevice& a_device );

    OutputFile m_file;
    SortedPieces m_pieces;
    QList<BookInRun> m_books;
};

} // namespace PimManager::Tools
