#include "Outputs/FoundTable.h"

#include "Terminal/TextColumns.h"
#include "Terminal/Wording.h"
#include "TestBooks.h"

#include <QBuffer>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

const QByteArray s_kNell = CardText( "FN:Nell Brackwater\r\nTEL;TYPE=CELL:+1-555-0101\r\nitem1.TEL:+1-555-0102\r\n"
                                     "item1.X-ABLabel:boat phone\r\nORG:Tide Office;Charts\r\n" );

// A table of the contacts that a search would find in the books.
QString Table( const QList<QByteArray>& a_books, const QByteArray& a_cards, const Screen& a_screen,
               FoundTable::Grades a_grades, const std::vector<FoundContact>& a_found )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    FoundTable table( buffer, a_screen, a_books, a_grades,
                      [&a_found]( const PimContactBook& /*a_book*/ ) { return a_found; } );
    const PimContactBook cards = PimContactBook::FromBytes( a_cards );
    BookInRun book;
    for ( int i = 0; i < cards.Size(); ++i )
    {
        book.m_source = SourceName( a_books.at( i % a_books.size() ) );
        table.TakeCard( book, cards.CardAt( i ) );
    }
    EXPECT_EQ( buffer.data().size(), 0 );
    table.End();
    EXPECT_EQ( Utf8( table.Result() ), std::to_string( a_found.size() ) + " found" );
    return QString::fromUtf8( buffer.data() );
}

} // namespace

TEST( FoundTableTest, RowsAreTheContactsThatAreFoundWithTheirNumbers )
{
    const std::vector<FoundContact> found = { { 1, {}, {} }, { 0, { 3 }, {} }, { 0, { 2, 3 }, {} } };
    EXPECT_EQ(
        Utf8( Table( { "a.vcf" }, s_kNell + CardText( "NOTE:x\r\n" ), Screen(), FoundTable::Grades::None, found ) ),
        "NAME             NUMBER                  ORGANISATION\n"
        "(no name)\n"
        "Nell Brackwater  +1-555-0102 boat phone  Tide Office, Charts\n"
        "Nell Brackwater  +1-555-0101 cell        Tide Office, Charts\n"
        "                 +1-555-0102 boat phone\n" );
}

TEST( FoundTableTest, NumberInAnotherLanguageIsShown )
{
    const QByteArray card = CardText( "VERSION:4.0\r\nFN:Bo\r\nTEL;ALTID=1;LANGUAGE=en:+1-555-0101\r\n"
                                      "TEL;ALTID=1;LANGUAGE=de;TYPE=home:+1-555-0102\r\n" );
    EXPECT_EQ( Utf8( Table( { "a.vcf" }, card, Screen(), FoundTable::Grades::None,
                            { { 0, { 4 }, {} }, { 0, { 0, 9 }, {} } } ) ),
               "NAME  NUMBER            ORGANISATION\n"
               "Bo    +1-555-0102 home\n"
               "Bo\n" );
}

TEST( FoundTableTest, GradesAndBooksHaveColumns )
{
    const std::vector<FoundContact> found = { { 1, {}, QStringLiteral( "exact" ) },
                                              { 0, { 3 }, QStringLiteral( "ending" ) } };
    EXPECT_EQ( Utf8( Table( { "old/a.vcf", "b.vcf" }, s_kNell + CardText( "FN:Bo\r\n" ), Screen(),
                            FoundTable::Grades::Shown, found ) ),
               "NAME             NUMBER                  MATCH   ORGANISATION         BOOK\n"
               "Bo                                       exact                        b.vcf\n"
               "Nell Brackwater  +1-555-0102 boat phone  ending  Tide Office, Charts  a.vcf\n" );
}

TEST( FoundTableTest, NothingIsWrittenIfNothingIsFound )
{
    EXPECT_EQ( Utf8( Table( { "a.vcf" }, s_kNell, Screen(), FoundTable::Grades::Shown, {} ) ), "" );
}

TEST( FoundTableTest, NoLineIsWiderThanTheTerminal )
{
    const std::vector<FoundContact> found( 3, { 0, { 2, 3 }, QStringLiteral( "national" ) } );
    for ( int columns = 20; columns <= 120; ++columns )
    {
        const QString table =
            Table( { "messy-phonebook.vcf", "a.vcf" }, s_kNell, Screen{ columns }, FoundTable::Grades::Shown, found );
        for ( const QString& line : table.split( QLatin1Char( '\n' ) ) )
            EXPECT_LE( ColumnsOf( line ), columns ) << Utf8( line );
    }
}
