#include "Outputs/DifferenceText.h"

#include "Terminal/TextColumns.h"
#include "TestBooks.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QBuffer>

#include <functional>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;
using namespace PimManager::Tools;

namespace
{

using Write = std::function<void( DifferenceText& )>;

QString Written( const Screen& a_screen, const Write& a_write )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    DifferenceText text( buffer, TextLength::Short, a_screen );
    a_write( text );
    return QString::fromUtf8( buffer.data() );
}

PimContactCard CardOf( const QByteArray& a_lines )
{
    return PimContactBook::FromBytes( CardText( a_lines ) ).CardAt( 0 );
}

PimContact ContactOf( const QByteArray& a_lines )
{
    return PimContact( CardOf( a_lines ) );
}

ChangedContact ChangedNell()
{
    const QByteArray lines = "VERSION:3.0\r\nFN:Nell Brackwater\r\n";
    return { ContactOf( lines + "TEL;TYPE=CELL:+1-555-0101\r\n" ),
             ContactOf( lines + "item1.TEL:+1-555-0102\r\nitem1.X-ABLabel:boat phone\r\nNOTE:One\\nTwo\r\n" ),
             PimPhoneBookBasis::Uid };
}

} // namespace

TEST( DifferenceTextTest, LinesOfChangedContactsAreMarked )
{
    const QString text = Written( Screen(), []( DifferenceText& a_text ) { a_text.WriteChanged( ChangedNell() ); } );
    EXPECT_EQ( Utf8( text ), "changed: Nell Brackwater (card 1, by UID)\n"
                             "  - TEL              cell        +1-555-0101\n"
                             "  + TEL              boat phone  +1-555-0102\n"
                             "  + item1.X-ABLabel              boat phone\n"
                             "  + NOTE                         One\n"
                             "                                 Two\n" );
}

TEST( DifferenceTextTest, ReasonForAPairIsTold )
{
    struct Row
    {
        PimPhoneBookBasis m_basis;
        const char* m_heading;
    };
    for ( const Row& row : { Row{ PimPhoneBookBasis::Content, "changed: Bo (card 1, by content)" },
                             Row{ PimPhoneBookBasis::Uid, "changed: Bo (card 1, by UID)" },
                             Row{ PimPhoneBookBasis::BluetoothUid, "changed: Bo (card 1, by X-BT-UID)" },
                             Row{ PimPhoneBookBasis::NameAndNumber, "changed: Bo (card 1, by name and number)" },
                             Row{ PimPhoneBookBasis::Name, "changed: Bo (card 1, by name)" } } )
    {
        const ChangedContact contact = { ContactOf( "FN:B\r\n" ), ContactOf( "FN:Bo\r\n" ), row.m_basis };
        const QString text =
            Written( Screen(), [&contact]( DifferenceText& a_text ) { a_text.WriteChanged( contact ); } );
        EXPECT_EQ( Utf8( text.section( QLatin1Char( '\n' ), 0, 0 ) ), row.m_heading );
    }
}

TEST( DifferenceTextTest, CardsAreNamedByTheirNumbers )
{
    const PimContactBook book =
        PimContactBook::FromBytes( CleanCard() + PartCard() + CardText( "VERSION:3.0\r\nTITLE:x\r\n" ) );
    const QString text = Written( Screen(),
                                  [&book]( DifferenceText& a_text )
                                  {
                                      a_text.WriteRemoved( book.CardAt( 1 ) );
                                      a_text.WriteAdded( book.CardAt( 0 ) );
                                      a_text.WriteAdded( book.CardAt( 2 ) );
                                  } );
    EXPECT_EQ( Utf8( text ), "removed: Tobias (card 2, in part)\nadded: Nell (card 1)\nadded: (no name) (card 3)\n" );
}

TEST( DifferenceTextTest, NoLineIsWiderThanTheTerminal )
{
    const QByteArray lines = "FN:" + QByteArray( "Lanthornia " ).repeated( 7 ) +
                             "\r\nNOTE;X-A=B:" + QByteArray( "月見里" ).repeated( 20 ) + "\r\nX-" +
                             QByteArray( 40, 'A' ) + ":1\r\n";
    const ChangedContact contact = { ContactOf( lines ), ChangedNell().m_new, PimPhoneBookBasis::NameAndNumber };
    for ( int columns = 20; columns <= 120; ++columns )
    {
        const QString text = Written( Screen{ columns },
                                      [&contact]( DifferenceText& a_text )
                                      {
                                          a_text.WriteRemoved( contact.m_old.Card() );
                                          a_text.WriteChanged( contact );
                                      } );
        for ( const QString& line : text.split( QLatin1Char( '\n' ) ) )
            EXPECT_LE( ColumnsOf( line ), columns ) << Utf8( line );
    }
}

TEST( DifferenceTextTest, HeadingsAreMarkedOnAColouredTerminal )
{
    const QString text =
        Written( Screen{ 80, true }, []( DifferenceText& a_text ) { a_text.WriteAdded( CardOf( "FN:Bo\r\n" ) ); } );
    EXPECT_EQ( Utf8( text ), "\x1B[1madded: Bo (card 1)\x1B[0m\n" );
}

TEST( DifferenceTextTest, HostileCardReachesTheTerminalHarmlessly )
{
    const QByteArray hostile = HostileText();
    const QByteArray lines =
        "FN:" + hostile + "\r\nTEL;TYPE=\"" + hostile + "\":" + hostile + "\r\nX-" + hostile + ":x\r\n";
    const ChangedContact contact = { ContactOf( lines ), ContactOf( "NOTE:" + hostile + "\r\n" ),
                                     PimPhoneBookBasis::Name };
    const QString text = Written( Screen(), [&contact]( DifferenceText& a_text ) { a_text.WriteChanged( contact ); } );
    EXPECT_GT( text.size(), 200 );
    EXPECT_TRUE( IsHarmless( Utf8( text ) ) ) << Utf8( text );
}
