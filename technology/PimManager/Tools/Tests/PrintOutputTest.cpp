#include "ProgramRun.h"

#include "Console.h"
#include "Outputs/OutputDevice.h"
#include "Program.h"
#include "ToolsTestText.h"

#include <QTextCodec>

#include <fcntl.h>
#include <unistd.h>

using namespace PimManager::vCard::Tools;

namespace
{

// Everything that drives a terminal, in UTF-8: C1 controls, overrides and isolates of direction, separators, a byte
// order mark. The parser lets it into values and quoted parameter values.
const QByteArray s_kHostileText = "\xC2\x9B[31m\xC2\x9D"
                                  "0;t\xC2\x9C\xC2\x85\xE2\x80\xAE\xE2\x80\x8F\xE2\x81\xA6"
                                  "\xE2\x80\xA8\xE2\x80\xA9\xF3\xA0\x80\x81";
// Control characters that the parser refuses: they come up in its log.
const QByteArray s_kControls = "\x1B[2J\x07\x08\x7F\x1B]0;t\x07";

QByteArray HostileBook()
{
    return CardText( "FN:" + s_kHostileText + "\r\nX-A;Z=\"" + s_kHostileText + "\":" + s_kHostileText + "\n\tx\r\n" ) +
           CardText( "NOTE:" + s_kHostileText + s_kControls + "\r\n" ) + CardText( s_kControls + ":x\r\n" ) +
           CardText( "X-" + s_kHostileText + ":x\r\n" ) + CardText( "TEL;TYPE=" + s_kControls + ":x\r\n" ) +
           "BEGIN:" + s_kHostileText +
           "\r\nEND:VCARD\r\n"
           "BEGIN:VCARD\r\nFN:" +
           s_kHostileText + "\r\n" + CardText( "N:" + s_kHostileText + "\r\n" );
}

QByteArray LargeBook()
{
    return CardText( "FN:Nell\r\nNOTE:" + QByteArray( 50, 'x' ) + "\r\n" ).repeated( 3000 );
}

const QByteArray s_kNamesOfTheWorld = CardText( "FN:Δάφνη, Зинаида, 月見里, ليلى, Siobhán \xF0\x9F\x94\xAD\r\n" );

} // namespace

TEST( PrintOutputTest, HostileFileReachesTheTerminalHarmlessly )
{
    const Folder folder;
    const QByteArray book = folder.Write( "evil\x1B[2J\x07\xC2\x9B\xE2\x80\xAE\n.vcf", HostileBook() );
    const QList<QList<QByteArray>> modes = { {}, { "--full" }, { "--json" }, { "--json-lines" } };
    for ( const QList<QByteArray>& mode : modes )
    {
        for ( const QList<QByteArray>& log : { QList<QByteArray>{}, QList<QByteArray>{ "--log" } } )
        {
            const ProgramRun run = RunPimvcard( QList<QByteArray>{ "print" } + mode + log + QList<QByteArray>{ book } );
            EXPECT_EQ( run.m_status, 1 );
            EXPECT_NE( run.m_out.find( "9b[31m" ), std::string::npos );
            EXPECT_TRUE( IsHarmless( run.m_out ) )
                << QByteArray::fromStdString( run.m_out ).toPercentEncoding( " \n" ).constData();
            EXPECT_TRUE( IsHarmless( run.m_err ) )
                << QByteArray::fromStdString( run.m_err ).toPercentEncoding( " \n" ).constData();
            EXPECT_NE( run.m_err.find( "swallowed another card" ), std::string::npos ) << run.m_err;
        }
    }
}

TEST( PrintOutputTest, HostileNameOfAMissingFileIsToldHarmlessly )
{
    const ProgramRun run = RunPimvcard( { "print", "/missing/\x1B[2J\x07\xC2\x9B\xFF\n" } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err.find( "pimvcard: /missing/\\x1b[2J\\x07\\x9b\xEF\xBF\xBD\\n: No such file or directory\n" ),
               0U )
        << run.m_err;
}

TEST( PrintOutputTest, OutputIsUtf8InEveryEnvironment )
{
    const Folder folder;
    const QByteArray book = folder.Write( "b\xC3\xBC"
                                          "cher.vcf",
                                          s_kNamesOfTheWorld );
    const QByteArray missing = folder.Path( "\xC3\xA9.vcf" );
    for ( const char* variable : { "LC_ALL=C", "LC_ALL=C.UTF-8", "LC_ALL=de_DE.ISO-8859-1", "LANG=en_US.ISO-8859-15",
                                   "LC_ALL=ja_JP.eucJP", "LC_ALL=", "LANGUAGE=de" } )
    {
        const ProgramRun run = ProgramCall( { "print", book, missing } ).WithVariable( variable ).Run();
        EXPECT_EQ( run.m_status, 2 ) << variable;
        EXPECT_NE( run.m_out.find( "1. Δάφνη, Зинаида, 月見里, ليلى, Siobhán \xF0\x9F\x94\xAD (" ), std::string::npos )
            << variable << run.m_out;
        EXPECT_NE( run.m_out.find( "/b\xC3\xBC"
                                   "cher.vcf)\n" ),
                   std::string::npos )
            << variable << run.m_out;
        EXPECT_NE( run.m_err.find( "/\xC3\xA9.vcf: No such file or directory\n" ), std::string::npos )
            << variable << run.m_err;
    }
}

TEST( PrintOutputTest, OutputIsUtf8UnderALatin1Codec )
{
    const Folder folder;
    const QByteArray book = folder.Write( "b\xC3\xBC"
                                          "cher.vcf",
                                          s_kNamesOfTheWorld + CardText( "\xC3\xA9:x\r\n" ) );
    const QByteArray outName = folder.Write( "out", "" );
    const QByteArray errName = folder.Write( "err", "" );
    QTextCodec* const former = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale( QTextCodec::codecForName( "ISO-8859-1" ) );
    const int outFile = open( outName.constData(), O_WRONLY | O_CLOEXEC );
    const int errFile = open( errName.constData(), O_WRONLY | O_CLOEXEC );
    {
        OutputDevice out( outFile );
        OutputDevice err( errFile );
        Console console( out, err );
        EXPECT_EQ( int( RunProgram( { "print", "--log", book }, console ) ), 1 );
    }
    close( outFile );
    close( errFile );
    QTextCodec::setCodecForLocale( former );
    const std::string out = FileContent( outName ).toStdString();
    const std::string err = FileContent( errName ).toStdString();
    EXPECT_NE( out.find( "1. Δάφνη, Зинаида, 月見里, ليلى, Siobhán" ), std::string::npos ) << out;
    EXPECT_NE( out.find( "b\xC3\xBC"
                         "cher.vcf" ),
               std::string::npos )
        << out;
    EXPECT_NE( err.find( "b\xC3\xBC"
                         "cher.vcf: 1 of 2 cards refused" ),
               std::string::npos )
        << err;
    EXPECT_TRUE( IsHarmless( out ) && IsHarmless( err ) );
}

TEST( PrintOutputTest, BrokenPipeEndsTheProgramQuietly )
{
    const Folder folder;
    const QByteArray large = folder.Write( "large", LargeBook() + CardText( "X_Y:z\r\n" ) );
    const QByteArray small = folder.Write( "small", CardText( "FN:x\r\n" ) );
    for ( const QByteArray& book : { large, small } )
    {
        for ( const char* option : { "--full", "--json", "--json-lines" } )
        {
            const ProgramRun run = ProgramCall( { "print", option, book, large } ).WithBrokenPipe().Run();
            EXPECT_EQ( run.m_status, 0 ) << option;
            EXPECT_EQ( run.m_err, "" ) << option;
        }
    }
}

TEST( PrintOutputTest, BrokenPipeKeepsTheStatusOfWhatWasToldBefore )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", CardText( "FN:x\r\n" ) );
    const QByteArray missing = folder.Path( "missing" );
    const ProgramRun run = ProgramCall( { "print", missing, book } ).WithBrokenPipe().Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: " + missing.toStdString() + ": No such file or directory\n" );
}

TEST( PrintOutputTest, BrokenPipeDoesNotMatterWhenNothingIsPrinted )
{
    const Folder folder;
    const ProgramRun run = ProgramCall( { "print", folder.Write( "empty", "" ) } ).WithBrokenPipe().Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_NE( run.m_err.find( ": is empty\n" ), std::string::npos ) << run.m_err;
}

TEST( PrintOutputTest, FullDiskIsToldWithStatusTwo )
{
    const Folder folder;
    const QByteArray large = folder.Write( "large", LargeBook() );
    const QByteArray small = folder.Write( "small", CardText( "FN:x\r\n" ) );
    for ( const QByteArray& book : { large, small } )
    {
        for ( const char* option : { "--full", "--json", "--json-lines" } )
        {
            const ProgramRun run = ProgramCall( { "print", option, book, small } ).WithOutputTo( "/dev/full" ).Run();
            EXPECT_EQ( run.m_status, 2 ) << option;
            EXPECT_EQ( run.m_err, "pimvcard: the output cannot be written: No space left on device\n" ) << option;
        }
    }
}
