#include "ProgramRun.h"
#include "TerminalRun.h"

#include "Terminal/TextColumns.h"
#include "TestBooks.h"

#include <algorithm>
#include <csignal>

using namespace PimManager::Tools;

namespace
{

const QByteArray s_kWide = CardText( "VERSION:3.0\r\nFN:Otmar von Hügelstein zu Maulwurfsburg und Grashalm\r\n"
                                     "TEL;TYPE=WORK:+1-555-0170\r\nEMAIL:otmar.von.huegelstein@example.com\r\n"
                                     "ORG:Academy of Small Hills\r\n" );

} // namespace

TEST( TerminalTest, TableFitsTheTerminal )
{
    for ( const int columns : { 40, 80, 100, 200 } )
    {
        TerminalRun run( { "list", "-" }, TerminalRun::Watched::Both, columns );
        run.Feed( s_kWide );
        EXPECT_EQ( run.Finish(), 0 );
        const QStringList lines = QString::fromStdString( run.Screen() ).split( QLatin1Char( '\n' ) );
        EXPECT_GT( lines.size(), 3 );
        for ( const QString& line : lines )
            EXPECT_LE( ColumnsOf( line ), columns ) << Utf8( line );
    }
}

TEST( TerminalTest, ExamplesFitTheTerminal )
{
    const QByteArray folder = PIMVCARD_EXAMPLES;
    for ( const char* command : { "list", "show", "diff", "check" } )
    {
        for ( const int columns : { 40, 80 } )
        {
            TerminalRun run( { command, "--quiet", folder + "/messy-phonebook.vcf", folder + "/phonebook.vcf" },
                             TerminalRun::Watched::Both, columns );
            EXPECT_EQ( run.Finish(), 1 );
            EXPECT_GT( run.Screen().size(), 1000U ) << command;
            const QStringList lines = QString::fromStdString( run.Screen() ).split( QLatin1Char( '\n' ) );
            for ( const QString& line : lines )
                EXPECT_LE( ColumnsOf( line ), columns ) << command << ": " << Utf8( line );
        }
    }
}

TEST( TerminalTest, UsersVariablesCount )
{
    struct Row
    {
        const char* m_name;
        QList<QByteArray> m_variables;
        bool m_isColoured;
    };
    const std::vector<Row> rows = {
        { "colour", { "NO_COLOR=" }, true },
        { "no colour", { "NO_COLOR=1" }, false },
        { "dumb", { "NO_COLOR=", "TERM=dumb" }, false },
        { "unknown", { "NO_COLOR=", "TERM=" }, false },
    };
    for ( const Row& row : rows )
    {
        TerminalRun run( { "list", "--quiet", "-" }, TerminalRun::Watched::Both, 80, row.m_variables );
        run.Feed( CleanCard() );
        EXPECT_EQ( run.Finish(), 0 ) << row.m_name;
        EXPECT_EQ( run.Screen(), std::string( row.m_isColoured ? "\x1B[1m" : "" ) +
                                     "NAME  NUMBER         MAIL  ORGANISATION" + ( row.m_isColoured ? "\x1B[0m" : "" ) +
                                     "\nNell  555-0100 cell\n" )
            << row.m_name;
    }
    TerminalRun narrow( { "list", "--quiet", "-" }, TerminalRun::Watched::Both, 80, { "COLUMNS=30" } );
    narrow.Feed( CleanCard() );
    EXPECT_EQ( narrow.Finish(), 0 );
    EXPECT_EQ( narrow.Screen().find( "NAME  NUMBER, MAIL,\n" ), 0U ) << narrow.Screen();
}

TEST( TerminalTest, HelpFitsTheTerminal )
{
    for ( const char* command : { "list", "show", "find", "who", "diff", "check", "convert", "help" } )
    {
        for ( const int columns : { 40, 79, 100, 200 } )
        {
            TerminalRun run( { "help", command }, TerminalRun::Watched::Both, columns );
            EXPECT_EQ( run.Finish(), 0 );
            const QStringList lines = QString::fromStdString( run.Screen() ).split( QLatin1Char( '\n' ) );
            EXPECT_GT( lines.size(), 8 ) << command;
            for ( const QString& line : lines )
                EXPECT_LE( ColumnsOf( line ), std::min( columns, 100 ) ) << command << ": " << Utf8( line );
        }
    }
}

TEST( TerminalTest, MessagesAreWrappedAndMarked )
{
    TerminalRun plain( { "missing" }, TerminalRun::Watched::ErrorsOnly, 40 );
    EXPECT_EQ( plain.Finish(), 2 );
    EXPECT_EQ( plain.Screen().find( "pimvcard: missing is neither a command\n  nor a file" ), 0U ) << plain.Screen();
    TerminalRun coloured( { "list", "missing.vcf" }, TerminalRun::Watched::ErrorsOnly, 80, { "NO_COLOR=" } );
    EXPECT_EQ( coloured.Finish(), 2 );
    EXPECT_EQ( coloured.Screen().find( "\x1B[31mpimvcard:\x1B[0m missing.vcf: No such file" ), 0U )
        << coloured.Screen();
}

TEST( TerminalTest, SeveritiesAreMarked )
{
    TerminalRun run( { "check", "-" }, TerminalRun::Watched::Both, 200, { "NO_COLOR=" } );
    run.Feed( PartCard().chopped( 2 ) );
    EXPECT_EQ( run.Finish(), 1 );
    EXPECT_NE( run.Screen().find( "standard input:4:1: \x1B[31mdropped\x1B[0m: " ), std::string::npos ) << run.Screen();
    EXPECT_NE( run.Screen().find( ": \x1B[33mrepaired\x1B[0m: " ), std::string::npos ) << run.Screen();
}

TEST( TerminalTest, FileNameFromRightToLeftIsIsolated )
{
    TerminalRun run( { "check", "ספר.vcf" }, TerminalRun::Watched::Both );
    EXPECT_EQ( run.Finish(), 2 );
    EXPECT_EQ( run.Screen().find( "pimvcard: \u2068ספר.vcf\u2069: No such file" ), 0U ) << run.Screen();
}

TEST( TerminalTest, PipeGetsNoColours )
{
    TerminalRun run( { "list", "--quiet", "-" }, TerminalRun::Watched::ErrorsOnly, 80, { "NO_COLOR=" } );
    run.Feed( CleanCard() );
    EXPECT_EQ( run.Finish(), 0 );
    EXPECT_EQ( run.Pipe(), "NAME  NUMBER         MAIL  ORGANISATION\nNell  555-0100 cell\n" );
}

TEST( TerminalTest, PipeGetsLinesThatAreNotWrapped )
{
    TerminalRun run( { "list", "-" }, TerminalRun::Watched::ErrorsOnly, 40 );
    run.Feed( s_kWide );
    EXPECT_EQ( run.Finish(), 0 );
    EXPECT_EQ( QByteArray::fromStdString( run.Pipe() ).count( '\n' ), 2 ) << run.Pipe();
    EXPECT_EQ( run.Screen().find( "pimvcard: 1 file, 1 contact" ), 0U ) << run.Screen();
}

TEST( TerminalTest, CtrlCEndsInOrderWithWhatWasRead )
{
    const Folder folder;
    const QByteArray rejects = folder.Path( "rejects" );
    TerminalRun run( { "convert", "--to", "json", "--rejects", rejects, "-" }, TerminalRun::Watched::ErrorsOnly );
    run.Feed( CleanCard() + PartCard() + "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Barnaby\r\nTEL:555-0" );
    run.Interrupt();
    EXPECT_EQ( run.Finish(), 130 );
    EXPECT_NE( run.Pipe().find( "\"name\":\"Nell\"" ), std::string::npos ) << run.Pipe();
    EXPECT_NE( run.Pipe().find( "\"name\":\"Tobias\"" ), std::string::npos ) << run.Pipe();
    EXPECT_EQ( run.Pipe().find( "Barnaby" ), std::string::npos ) << run.Pipe();
    EXPECT_EQ( run.Pipe().substr( run.Pipe().size() - 4 ), "}\n]\n" );
    EXPECT_NE( run.Screen().find( "pimvcard: interrupted; the output has what was read before\npimvcard: 1 file, " ),
               std::string::npos )
        << run.Screen();
    EXPECT_EQ( FileContent( rejects ), "\x01\x02 %%%\r\n" );
}

TEST( TerminalTest, CtrlCEndsACheckBehindTheLastWholeCard )
{
    TerminalRun run( { "check", "-" }, TerminalRun::Watched::ErrorsOnly );
    run.Feed( PartCard() + "BEGIN:VCARD\r\nVERSION:3.0\r\nTEL:555-0" );
    run.Interrupt();
    EXPECT_EQ( run.Finish(), 130 );
    EXPECT_EQ( run.Pipe().find( "standard input:4:1: dropped: " ), 0U ) << run.Pipe();
    EXPECT_NE(
        run.Pipe().find( "\nstandard input: 1 card: 1 in part; CR LF line endings; UTF-8 (all ASCII); version 3.0; "
                         "1 × not-a-property; not read to its end\n" ),
        std::string::npos )
        << run.Pipe();
    EXPECT_EQ( run.Screen(), "pimvcard: interrupted; the output has what was read before\n" );
}

TEST( TerminalTest, CtrlCEndsADiffWithoutDifferences )
{
    const Folder folder;
    TerminalRun run( { "diff", folder.Write( "old", CleanCard() + CardText( "FN:Later\r\n" ) ), "-" },
                     TerminalRun::Watched::ErrorsOnly );
    run.Feed( CleanCard() );
    run.Interrupt();
    EXPECT_EQ( run.Finish(), 130 );
    EXPECT_EQ( run.Pipe(), "" );
    EXPECT_NE( run.Screen().find( "nothing is compared" ), std::string::npos ) << run.Screen();
}

TEST( TerminalTest, FilesBehindTheInterruptedOneAreNotRead )
{
    const Folder folder;
    TerminalRun run( { "convert", "-t", "json-lines", "-", folder.Write( "book", CardText( "FN:Later\r\n" ) ) },
                     TerminalRun::Watched::ErrorsOnly );
    run.Feed( CleanCard() );
    run.Interrupt();
    EXPECT_EQ( run.Finish(), 130 );
    EXPECT_EQ( run.Pipe().find( "Later" ), std::string::npos );
}

TEST( TerminalTest, ShortWorkShowsNoProgress )
{
    TerminalRun run( { "list", "--quiet", "-" }, TerminalRun::Watched::Both );
    run.Feed( CleanCard() );
    EXPECT_EQ( run.Finish(), 0 );
    EXPECT_EQ( run.Screen().find( '\x1B' ), std::string::npos ) << run.Screen();
}
