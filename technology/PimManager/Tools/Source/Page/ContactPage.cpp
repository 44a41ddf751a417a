#include "Page/ContactPage.h"

#include "Page/AccountHtml.h"
#include "Page/CardHtml.h"
#include "Page/ContactHtml.h"
#include "Page/NameOrder.h"
#include "Page/PageDesign.h"
#include "Page/SectionHtml.h"

namespace PimManager::Tools
{

using namespace Contacts;

ContactPage::ContactPage( const QByteArray& a_fileName, OutputClaims& a_claims ) :
    m_file( a_fileName, a_claims )
{
}

void ContactPage::TakeCard( const BookInRun& a_book, const PimContactCard& a_card )
{
    const PimContact contact( a_card );
    WriteContact( m_pieces.Device(), contact, CardAnchor( a_book.m_number, a_card.Number() ) );
    m_pieces.Add( PlaceOf( contact.SortName() ), DirectionOf( contact ), a_book.m_source );
}

void ContactPage::End()
{
    const QString failure = m_pieces.Failure();
    if ( !failure.isEmpty() )
        m_file.Fail( failure );
    else
        WritePage( m_file.Device() );
    m_file.Close();
}

void ContactPage::WritePage( QIODevice& a_device )
{
    const std::vector<PageSection> sections = SectionsOf( m_pieces.Sort() );
    a_device.write( PageHead() );
    WriteLetters( a_device, sections );
    a_device.write( PageMiddle() );
    WriteVerdict( a_device, m_books );
    WriteSections( a_device, sections, m_pieces, m_books.size() > 1 );
    a_device.write( "</main>\n" );
    WriteAccounts( a_device, m_books );
    a_device.write( PageTail() );
}

QStringList ContactPage::Failures() const
{
    const QString failure = m_file.Failure();
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

} // namespace PimManager::Tools
