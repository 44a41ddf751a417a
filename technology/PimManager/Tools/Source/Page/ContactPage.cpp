#include "Page/ContactPage.h"

#include "Page/AccountHtml.h"
#include "Page/ContactHtml.h"
#include "Page/HtmlText.h"
#include "Page/PageDesign.h"

namespace PimManager::Tools
{

using namespace Contacts;

ContactPage::ContactPage( const QByteArray& a_fileName, OutputClaims& a_claims ) :
    m_file( a_fileName, a_claims )
{
}

void ContactPage::Begin()
{
    m_file.Device().write( PageHead() );
}

void ContactPage::BeginBook( const BookInRun& a_book, const PimContactReader& /*a_reader*/ )
{
    m_file.Device().write( "<section class=\"listed\">\n<h2><bdi>" + ToHtmlText( a_book.m_source ).toUtf8() +
                           "</bdi></h2>\n<div class=\"list\">\n" );
}

void ContactPage::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    WriteContact( m_file.Device(), a_card, CardAnchor( a_book.m_number, a_card.Number() ) );
}

void ContactPage::EndBook( const BookInRun& a_book )
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

} // namespace PimManager::Tools
