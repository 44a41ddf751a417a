#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

QByteArray HostileBook()
{
    const QByteArray text = HostileText();
    return CardText( "VERSION:3.0\r\nFN:" + text + "\r\nTEL;TYPE=\"" + text + "\":" + text + "\r\nEMAIL:" + text +
                     "\r\nORG:" + text + ';' + text + "\r\nitem1.TEL:5\r\nitem1.X-ABLabel:" + text + "\r\nX-" + text +
                     ":x\r\n" ) +
           text + "\r\n" + CardText( "FN;ENCODING=QUOTED-PRINTABLE:=1B[2J=07=0D=0A=C2=9B\r\n" );
}

QByteArray LargeBook()
{
    return CardText( "VERSION:3.0\r\nFN:Nell " + QByteArray( 50, 'x' ) + "\r\n" ).repeated( 3000 );
}

} // namespace

TEST( CommandOutputTest, HostileFileReachesTheTerminalHarmlessly )
{
    const Folder folder;
    const QByteArray empty = folder.Write( "empty", "" );
    const QByteArray book = folder.Write( "evil\x1B[2J\x07\xC2\x9B\xE2\x80\xAE\n.vcf", HostileBook() );
    for ( const QList<QByteArray>& mode :
          { QList<QByteArray>{ "list" }, QList<QByteArray>{ "show" }, QList<QByteArray>{ "show", "--full" },
            QList<QByteArray>{ "convert", "--to", "json" }, QList<QByteArray>{ "convert", "--to", "json-lines" },
            QList<QByteArray>{ "check" }, QList<QByteArray>{ "check", "--strict" }, QList<QByteArray>{ "find" },
            QList<QByteArray>{ "diff", empty }, QList<QByteArray>{ "diff", "--json-lines", empty } } )
    {
        const bool isSearch = mode.constFirst() == "find";
        const QList<QByteArray> text = isSearch ? QList<QByteArray>{ "" } : QList<QByteArray>();
        const ProgramRun run = RunPimvcard( mode + QList<QByteArray>{ book } + text );
        EXPECT_LE( run.m_status, 1 ) << mode.join( ' ' ).constData();
        EXPECT_GT( run.m_out.size(), 100U ) << mode.join( ' ' ).constData();
        EXPECT_TRUE( IsHarmless( run.m_out ) )
            << QByteArray::fromStdString( run.m_out ).toPercentEncoding( " \n" ).constData();
        EXPECT_TRUE( IsHarmless( run.m_err ) )
            << QByteArray::fromStdString( run.m_err ).toPercentEncoding( " \n" ).constData();
    }
}

// The cards themselves go into files, and keep their characters.
TEST( CommandOutputTest, RemarksOnHostileCardsAreHarmless )
{
    const Folder folder;
    const QByteArray book = folder.Write( "evil\x1B[2J\x07\xC2\x9B\xE2\x80\xAE\n.vcf", HostileBook() );
    for ( const char* const format : { "2.1", "3.0", "4.0", "jcard", "csv" } )
    {
        const ProgramRun run = RunPimvcard( { "convert", "--to", format, book } );
        EXPECT_LE( run.m_status, 1 ) << format;
        EXPECT_GT( run.m_err.size(), 60U ) << format;
        EXPECT_TRUE( IsHarmless( run.m_err ) )
            << QByteArray::fromStdString( run.m_err ).toPercentEncoding( " \n" ).constData();
    }
}

TEST( CommandOutputTest, BrokenPipeEndsTheProgramQuietly )
{
    const Folder folder;
    const QByteArray large = folder.Write( "large", LargeBook() + PartCard() );
    for ( const QList<QByteArray>& mode :
          { QList<QByteArray>{ "list", large }, QList<QByteArray>{ "convert", "--to", "json", large },
            QList<QByteArray>{ "convert", "--to", "json-lines", large } } )
    {
        const ProgramRun run = ProgramCall( mode + QList<QByteArray>{ large } ).WithBrokenPipe().Run();
        EXPECT_EQ( run.m_status, 0 ) << mode.join( ' ' ).constData();
        EXPECT_EQ( run.m_err, "" ) << mode.join( ' ' ).constData();
    }
}

TEST( CommandOutputTest, BrokenPipeDoesNotChangeAnAnswer )
{
    const Folder folder;
    const QByteArray large = folder.Write( "large", LargeBook() );
    const QByteArray empty = folder.Write( "empty", "" );
    struct Row
    {
        QList<QByteArray> m_arguments;
        int m_status;
    };
    for ( const Row& row : { Row{ { "find", large, "nell" }, 0 }, Row{ { "diff", empty, large }, 1 },
                             Row{ { "diff", "--json-lines", empty, large }, 1 } } )
    {
        const ProgramRun run = ProgramCall( row.m_arguments ).WithBrokenPipe().Run();
        EXPECT_EQ( run.m_status, row.m_status ) << row.m_arguments.join( ' ' ).constData();
        EXPECT_EQ( run.m_err, "" ) << row.m_arguments.join( ' ' ).constData();
    }
}

TEST( CommandOutputTest, BrokenPipeDoesNotKeepFilesFromBeingWritten )
{
    const Folder folder;
    const QByteArray page = folder.Path( "page.html" );
    const QByteArray large = folder.Write( "large", LargeBook() );
    const ProgramRun run = ProgramCall( { "convert", "-t", "html", "-o", page, large } ).WithBrokenPipe().Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_NE( run.m_err.find( "3000 contacts" ), std::string::npos ) << run.m_err;
    EXPECT_EQ( FileContent( page ).count( "<details class=\"contact\"" ), 3000 );
}

TEST( CommandOutputTest, FullDiskIsReportedWithStatusTwo )
{
    const Folder folder;
    const QByteArray empty = folder.Write( "empty", "" );
    for ( const QByteArray& book : { folder.Write( "large", LargeBook() ), folder.Write( "small", CleanCard() ) } )
    {
        for ( const QList<QByteArray>& mode :
              { QList<QByteArray>{ "list" }, QList<QByteArray>{ "convert", "--to", "json" },
                QList<QByteArray>{ "check" }, QList<QByteArray>{ "find", book }, QList<QByteArray>{ "diff", empty } } )
        {
            const bool isSearch = mode.constFirst() == "find";
            const QByteArray last = isSearch ? QByteArray( "nell" ) : book;
            const ProgramRun run = ProgramCall( mode + QList<QByteArray>{ last } ).WithOutputTo( "/dev/full" ).Run();
            EXPECT_EQ( run.m_status, 2 ) << mode.join( ' ' ).constData();
            EXPECT_EQ( run.m_err, "pimvcard: the output cannot be written: No space left on device\n" )
                << mode.join( ' ' ).constData();
        }
    }
}

TEST( CommandOutputTest, OutputIsUtf8InEveryEnvironment )
{
    const QByteArray book = CardText( "VERSION:3.0\r\nFN:Siobhán 月見里\r\n" );
    for ( const char* variable : { "LC_ALL=C", "LC_ALL=de_DE.ISO-8859-1", "LC_ALL=tr_TR.UTF-8" } )
    {
        const ProgramRun run = ProgramCall( { "list", "-" } ).WithInput( book ).WithVariable( variable ).Run();
        EXPECT_NE( run.m_out.find( "\nSiobhán 月見里\n" ), std::string::npos ) << variable << run.m_out;
    }
}
