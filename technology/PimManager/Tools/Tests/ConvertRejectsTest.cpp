#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

// The rejects of some files.
QByteArray Rejects( const QList<QByteArray>& a_books, const QList<QByteArray>& a_options = {} )
{
    const Folder folder;
    const QByteArray rejects = folder.Path( "rejects" );
    QList<QByteArray> arguments = QList<QByteArray>{ "convert", "--rejects", rejects } + a_options;
    for ( const QByteArray& book : a_books )
        arguments << folder.Write( "book" + QByteArray::number( arguments.size() ), book );
    const ProgramRun run = RunPimvcard( arguments );
    const QByteArray bytes = FileContent( rejects );
    EXPECT_EQ( run.m_status, bytes.isEmpty() ? 0 : 1 ) << run.m_err;
    EXPECT_EQ( run.m_out, "" );
    return bytes;
}

QByteArray Nested( int a_depth )
{
    return a_depth == 0 ? CleanCard() : CardText( "AGENT:\r\n" + Nested( a_depth - 1 ) );
}

} // namespace

TEST( ConvertRejectsTest, DroppedLinesAreWrittenAsTheyWereFound )
{
    struct Row
    {
        const char* m_name;
        QByteArray m_book;
        QByteArray m_rejects;
    };
    const std::vector<Row> rows = {
        { "nothing", CleanCard(), "" },
        { "text outside cards", "hello\r\n" + CleanCard(), "" },
        { "a line", PartCard(), "\x01\x02 %%%\r\n" },
        { "a line of each of two cards", CleanCard() + PartCard() + PartCard(), "\x01\x02 %%%\r\n\x01\x02 %%%\r\n" },
        { "LF", QByteArray( PartCard() ).replace( "\r\n", "\n" ), "\x01\x02 %%%\n" },
        { "CR", QByteArray( PartCard() ).replace( "\r\n", "\r" ), "\x01\x02 %%%\r" },
        { "comments with a property between them", CardText( "# a\r\nFN:x\r\n#b\r\n" ), "# a\r\n#b\r\n" },
        { "the end of the file", CardText( "FN:x\r\n# a" ).chopped( 11 ), "# a" },
        { "text on BEGIN and END", "BEGIN:VCARD x\r\nFN:a\r\nEND:VCARD y\r\n", "x\r\ny" },
        { "text on BEGIN, and a line", "BEGIN:VCARD x\r\n# a\r\nEND:VCARD\r\n", "x\r\n# a\r\n" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Rejects( { row.m_book } ), row.m_rejects ) << row.m_name;
}

TEST( ConvertRejectsTest, WhatIsBeyondALimitIsWrittenWhole )
{
    const QByteArray line = "NOTE:" + QByteArray( 300000, 'x' ) + "\r\n";
    const QByteArray card = CardText( "VERSION:3.0\r\n" + line );
    const QByteArray open = card.chopped( 11 );
    struct Row
    {
        const char* m_option;
        const char* m_limit;
        QByteArray m_book;
        QByteArray m_rejects;
    };
    const std::vector<Row> rows = {
        { "--max-cards", "1", CleanCard() + CleanCard() + card, CleanCard() + card },
        { "--max-card-bytes", "100K", card + CleanCard() + card, card + card },
        { "--max-card-bytes", "100K", CleanCard() + open, open },
        { "--max-line-bytes", "100K", card, line },
        { "--max-line-bytes", "1K", CardText( line + "FN:x\r\n" + line ), line + line },
        { "--max-book-bytes", "100K", CleanCard() + card + CleanCard(), card },
    };
    for ( const Row& row : rows )
    {
        const QByteArray rejects = Rejects( { row.m_book }, { row.m_option, row.m_limit } );
        EXPECT_TRUE( rejects == row.m_rejects ) << row.m_option << ' ' << rejects.size() << ' ' << row.m_rejects.size();
    }
}

TEST( ConvertRejectsTest, CardsThatNestTooDeeplyAreWrittenWithTheirProperty )
{
    EXPECT_EQ( Rejects( { Nested( 3 ) }, { "--max-nesting", "2" } ), "AGENT:\r\n" + CleanCard() );
}

TEST( ConvertRejectsTest, RefusedFileIsWrittenWhole )
{
    const QByteArray archive = QByteArray( "PK\x03\x04" ) + QByteArray( 300000, '\0' );
    EXPECT_TRUE( Rejects( { archive } ) == archive );
    EXPECT_TRUE( Rejects( { archive, archive, PartCard() } ) == archive + "\r\n" + archive + "\r\n\x01\x02 %%%\r\n" );
}

TEST( ConvertRejectsTest, RejectsOfTwoFilesDoNotShareALine )
{
    const QByteArray book = CardText( "FN:x\r\n# a" ).chopped( 11 );
    EXPECT_EQ( Rejects( { book, book } ), "# a\r\n# a" );
}
