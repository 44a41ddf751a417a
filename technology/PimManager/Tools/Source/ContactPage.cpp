#include "ContactPage.h"

#include "AccountHtml.h"
#include "ContactHtml.h"
#include "HtmlText.h"
#include "PageDesign.h"

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

ContactPage::ContactPage( const QByteArray& a_fileName, OutputClaims& a_claims ) :
    m_file( a_fileName, a_claims )
{
}

void ContactPage::Begin()
{
    m_file.Device().write( PageHead() );
}

void ContactPage::BeginBook( const ImportedBook& a_book )
{
    m_file.Device().write( "<section class=\"listed\">\n<h2><bdi>" + ToHtmlText( a_book.m_source ).toUtf8() +
                           "</bdi></h2>\n<div class=\"list\">\n" );
}

void ContactPage::TakeCard( const ImportedBook& a_book, const PimVCardImportedCard& a_card )
{
    ContactHtml( m_file.Device(), *a_card.m_card )
        .Write( CardAnchor( a_book.m_number, a_card.m_index ), a_card.m_isWhole );
}

void ContactPage::EndBook( const ImportedBook& a_book )
{
    m_file.Device().write( "</div>\n</section>\n" );
    m_books << a_book;
}

void ContactPage::End()
{
    m_file.Device().write( "</main>\n" );
    WriteVerdict( m_file.Device(), m_books );
    WriteAccounts( m_file.Device(), m_books );
    m_file.Device().write( PageTail() );
    m_file.Close();
}

QStringList ContactPage::Failures() const
{
    const QString failure = m_file.Failure();
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

} // namespace PimManager::vCard::Tools
