#include "Outputs/ContactTable.h"

#include "Terminal/TextColumns.h"
#include "Terminal/Wording.h"
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

// The table of cards that are in turn from each of the books.
QString TableOfBooks( const QList<QByteArray>& a_books, const QList<QByteArray>& a_cards, const Screen& a_screen )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    ContactTable table( buffer, a_screen, a_books );
    table.Begin();
    BookInRun book;
    for ( int i = 0; i < a_cards.size(); ++i )
    {
        book.m_source = SourceName( a_books.at( i % a_books.size() ) );
        table.TakeCard( book, CardOf( a_cards.at( i ) ) );
    }
    table.End();
    return QString::fromUtf8( buffer.data() );
}

QString Table( const QList<QByteArray>& a_cards, int a_columns )
{
    QString table = TableOfBooks( { "book.vcf" }, a_cards, Screen{ a_columns } );
    EXPECT_TRUE( IsHarmless( Utf8( table ) ) );
    return table;
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
    EXPECT_EQ( Utf8( Table( { s_kNell }, 75 ) ),
               "NAME             NUMBER                   MAIL             ORGANISATION\n"
               "Nell Brackwater  +1-555-0101 cell, voice  nell             Tide Office,\n"
               "                 +1-555-0102 boat phone   @example.com     Charts\n" );
}

TEST( ContactTableTest, ColumnsThatBecomeTooNarrowAreBelowEachOther )
{
    EXPECT_EQ( Utf8( Table( { s_kNell, "FN:Bo\r\nORG:Weir\r\n" }, 61 ) ),
               "NAME             NUMBER                   MAIL, ORGANISATION\n"
               "Nell Brackwater  +1-555-0101 cell, voice  nell@example.com\n"
               "                 +1-555-0102 boat phone   Tide Office, Charts\n"
               "Bo                                        Weir\n" );
    EXPECT_EQ( Utf8( Table( { s_kNell, "FN:Bo\r\nORG:Weir\r\n" }, 40 ) ), "NAME             NUMBER, MAIL,\n"
                                                                          "                 ORGANISATION\n"
                                                                          "Nell Brackwater  +1-555-0101 cell, voice\n"
                                                                          "                 +1-555-0102 boat phone\n"
                                                                          "                 nell@example.com\n"
                                                                          "                 Tide Office, Charts\n"
                                                                          "Bo               Weir\n" );
}

TEST( ContactTableTest, NumberIsBrokenOnlyIfItIsWiderThanItsColumn )
{
    const QByteArray lines = "FN:Otmar von Huegelstein zu Maulwurfsburg\r\nTEL;TYPE=CELL:+49 (0)30 5550 01 23 45\r\n"
                             "TEL:+49 (0)30 5550 01 23 45 67 89\r\n";
    EXPECT_EQ( Utf8( Table( { lines }, 40 ) ), "NAME            NUMBER, MAIL,\n"
                                               "                ORGANISATION\n"
                                               "Otmar von       +49 (0)30 5550 01 23 45\n"
                                               "Huegelstein zu  cell\n"
                                               "Maulwurfsburg   +49 (0)30 5550 01 23 45\n"
                                               "                67 89\n" );
}

TEST( ContactTableTest, NoLineIsWiderThanTheTerminal )
{
    const QByteArray wide = "FN:" + QByteArray( "Lanthornia " ).repeated( 30 ) + "\r\nTEL:" + QByteArray( 300, '5' ) +
                            "\r\nEMAIL:x@example.com\r\nORG:月見里月見里月見里月見里月見里\r\n";
    const QByteArray pictures =
        "FN:" + QByteArray( "👩🏽\u200D🚀🇩🇪👍🏽❤\uFE0F" ).repeated( 4 ) + "\r\n";
    const QByteArray arabic = "FN:" + QByteArray( "ليلى " ).repeated( 10 ) + "\r\n";
    for ( int columns = 20; columns <= 200; ++columns )
    {
        const QStringList lines =
            TableOfBooks( { "messy-phonebook.vcf", "a.vcf" }, { s_kNell, wide, pictures, arabic }, Screen{ columns } )
                .split( QLatin1Char( '\n' ) );
        for ( const QString& line : lines )
            EXPECT_LE( ColumnsOf( line ), columns ) << Utf8( line );
    }
}

TEST( ContactTableTest, ColumnNamesTheBookIfThereAreSeveral )
{
    const QList<QByteArray> cards = { "FN:Nell\r\nTEL:1\r\n", "FN:Bo\r\n" };
    struct Row
    {
        QList<QByteArray> m_books;
        const char* m_names;
    };
    const std::vector<Row> rows = {
        { { "a.vcf", "b.vcf" }, "a.vcf|b.vcf" },
        { { "old/a.vcf", "new/b.vcf" }, "a.vcf|b.vcf" },
        { { "old/a.vcf", "new/a.vcf" }, "old/a.vcf|new/a.vcf" },
        { { "-", "books/b.vcf" }, "standard input|b.vcf" },
        { { "a\x1B.vcf", "b.vcf" }, "a\\x1b.vcf|b.vcf" },
    };
    for ( const Row& row : rows )
    {
        const QStringList names = QString::fromUtf8( row.m_names ).split( QLatin1Char( '|' ) );
        EXPECT_EQ( Utf8( TableOfBooks( row.m_books, cards, Screen() ) ),
                   "NAME  NUMBER  MAIL  ORGANISATION  BOOK\n"
                   "Nell  1                           " +
                       Utf8( names.first() ) + "\nBo                                " + Utf8( names.last() ) + "\n" );
    }
    EXPECT_EQ( Utf8( TableOfBooks( { "a.vcf", "a.vcf" }, cards, Screen() ) ),
               "NAME  NUMBER  MAIL  ORGANISATION\nNell  1\nBo\n" );
}

TEST( ContactTableTest, BookHasItsOwnColumnUntilTwoAreLeft )
{
    EXPECT_EQ( Utf8( TableOfBooks( { "a.vcf", "b.vcf" }, { s_kNell }, Screen{ 68 } ) ),
               "NAME             NUMBER                   MAIL, ORGANISATION   BOOK\n"
               "Nell Brackwater  +1-555-0101 cell, voice  nell@example.com     a.vcf\n"
               "                 +1-555-0102 boat phone   Tide Office, Charts\n" );
    EXPECT_EQ( Utf8( TableOfBooks( { "a.vcf", "b.vcf" }, { s_kNell }, Screen{ 41 } ) ),
               "NAME             NUMBER, MAIL,\n"
               "                 ORGANISATION, BOOK\n"
               "Nell Brackwater  +1-555-0101 cell, voice\n"
               "                 +1-555-0102 boat phone\n"
               "                 nell@example.com\n"
               "                 Tide Office, Charts\n"
               "                 a.vcf\n" );
}

TEST( ContactTableTest, TextFromRightToLeftIsIsolatedOnATerminal )
{
    const QList<QByteArray> cards = { "FN:ליאור\r\nTEL:1\r\n", "FN:Bo ב\r\nEMAIL;TYPE=ליא:b@example.com\r\n" };
    EXPECT_EQ( Utf8( TableOfBooks( { "book.vcf" }, cards, Screen{ 80 } ) ),
               "NAME   NUMBER  MAIL               ORGANISATION\n"
               "\u2068ליאור\u2069  1\n"
               "\u2068Bo ב\u2069           b@example.com \u2068ליא\u2069\n" );
    EXPECT_EQ( Utf8( TableOfBooks( { "book.vcf" }, cards, Screen() ) ),
               "NAME   NUMBER  MAIL               ORGANISATION\n"
               "ליאור  1\n"
               "Bo ב           b@example.com ליא\n" );
}

TEST( ContactTableTest, HeadingsAreMarkedOnAColouredTerminal )
{
    EXPECT_EQ( Utf8( TableOfBooks( { "book.vcf" }, { "FN:Bo\r\n" }, Screen{ 80, true } ) ),
               "\x1B[1mNAME  NUMBER  MAIL  ORGANISATION\x1B[0m\nBo\n" );
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
    ContactTable table( buffer, Screen(), { "book.vcf" } );
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
