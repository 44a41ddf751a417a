#include "Outputs/ContactTable.h"

#include "Terminal/TextColumns.h"
#include "ToolsTestText.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QBuffer>

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

PimContactCard CardOf( const QByteArray& a_lines )
{
    const PimContactBook book = PimContactBook::FromBytes( CardText( a_lines ) );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.constData();
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

QString Table( const QList<QByteArray>& a_cards, int a_columns )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    ContactTable table( buffer, a_columns );
    table.Begin();
    for ( const QByteArray& lines : a_cards )
        table.TakeCard( BookInRun(), CardOf( lines ) );
    table.End();
    EXPECT_TRUE( IsHarmless( buffer.data().toStdString() ) );
    return QString::fromUtf8( buffer.data() );
}

const QByteArray s_kNell = "FN:Nell Brackwater\r\nTEL;TYPE=CELL,VOICE:+1-555-0101\r\nitem1.TEL:+1-555-0102\r\n"
                           "item1.X-ABLabel:boat phone\r\nEMAIL;TYPE=INTERNET:nell@example.com\r\n"
                           "ORG:Tide Office;Charts\r\n";

} // namespace

TEST( ContactTableTest, CellsStandBelowEachOther )
{
    EXPECT_EQ( Utf8( Table( { s_kNell, "FN:月見里\r\nEMAIL;TYPE=WORK:tsuki@example.com\r\n", "NOTE:x\r\n" }, 0 ) ),
               "NAME             NUMBER                   MAIL                    ORGANISATION\n"
               "Nell Brackwater  +1-555-0101 cell, voice  nell@example.com        Tide Office, Charts\n"
               "                 +1-555-0102 boat phone\n"
               "月見里                                    tsuki@example.com work\n"
               "(no name)\n" );
}

TEST( ContactTableTest, NothingIsWrittenWithoutContacts )
{
    EXPECT_EQ( Utf8( Table( {}, 0 ) ), "" );
}

TEST( ContactTableTest, NarrowTerminalWrapsCells )
{
    EXPECT_EQ( Utf8( Table( { s_kNell }, 56 ) ), "NAME          NUMBER        MAIL           ORGANISATION\n"
                                                 "Nell          +1-555-0101   nell           Tide Office,\n"
                                                 "Brackwater    cell, voice   @example.com   Charts\n"
                                                 "              +1-555-0102\n"
                                                 "              boat phone\n" );
}

TEST( ContactTableTest, NoLineIsWiderThanTheTerminal )
{
    const QByteArray wide = "FN:" + QByteArray( "Lanthornia " ).repeated( 30 ) + "\r\nTEL:" + QByteArray( 300, '5' ) +
                            "\r\nEMAIL:x@example.com\r\nORG:月見里月見里月見里月見里月見里\r\n";
    for ( int columns = 40; columns <= 200; columns += 7 )
    {
        const QStringList lines = Table( { s_kNell, wide }, columns ).split( QLatin1Char( '\n' ) );
        for ( const QString& line : lines )
            EXPECT_LE( ColumnsOf( line ), columns ) << Utf8( line );
    }
}

TEST( ContactTableTest, HugeFieldsAreCut )
{
    QByteArray lines = "FN:" + QByteArray( 1000000, 'x' ) + "\r\n";
    for ( int i = 0; i < 1000; ++i )
        lines += "TEL:555\r\n";
    const QString table = Table( { lines }, 0 );
    EXPECT_LT( table.size(), 10000 );
    EXPECT_NE( table.indexOf( QStringLiteral( "(1000000 characters)" ) ), -1 );
    EXPECT_NE( table.indexOf( QStringLiteral( "(1000 in all)" ) ), -1 );
}

TEST( ContactTableTest, LinesDoNotEndInBlanks )
{
    const QStringList lines = Table( { s_kNell, "FN:x\r\n", "TEL:5\r\n" }, 60 ).split( QLatin1Char( '\n' ) );
    for ( const QString& line : lines )
        EXPECT_FALSE( line.endsWith( QLatin1Char( ' ' ) ) ) << Utf8( line );
}

TEST( ContactTableTest, ContactsBeyondTheFirstComeAtOnce )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    ContactTable table( buffer, 0 );
    const PimContactCard card = CardOf( s_kNell );
    for ( int i = 0; i < 199; ++i )
        table.TakeCard( BookInRun(), card );
    EXPECT_EQ( buffer.data().size(), 0 );
    table.TakeCard( BookInRun(), card );
    const auto written = buffer.data().size();
    EXPECT_GT( written, 0 );
    table.TakeCard( BookInRun(), card );
    EXPECT_GT( buffer.data().size(), written );
}
