#include "ProgramRun.h"

#include "ToolsTestText.h"

#include <unistd.h>
#include <vector>

using namespace PimManager::vCard::Tools;

TEST( ProgramTest, HelpGoesToStandardOutput )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_says;
    };
    const std::vector<Row> rows = {
        { { "--help" }, "Usage: pimvcard [options] import | check | print FILE...\n" },
        { { "-h" }, "-v, --version" },
        { { "print", "--help" }, "Usage: pimvcard [options] print FILE...\n" },
        { { "print", "-h" }, "--json-lines" },
        { { "--help", "print" }, "Exit status: 0 every card was given" },
        { { "print", "x.vcf", "-h" }, "- is standard input" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( row.m_arguments );
        EXPECT_EQ( run.m_status, 0 );
        EXPECT_NE( run.m_out.find( row.m_says ), std::string::npos ) << row.m_says << "\n" << run.m_out;
        EXPECT_EQ( run.m_err, "" );
    }
}

TEST( ProgramTest, VersionIsThatOfTheProject )
{
    for ( const QList<QByteArray>& arguments :
          { QList<QByteArray>{ "--version" }, QList<QByteArray>{ "-v" }, QList<QByteArray>{ "print", "--version" } } )
    {
        const ProgramRun run = RunPimvcard( arguments );
        EXPECT_EQ( run.m_status, 0 );
        EXPECT_EQ( run.m_out, "pimvcard " PIMVCARD_VERSION "\n" );
        EXPECT_EQ( run.m_err, "" );
    }
}

TEST( ProgramTest, WrongUsageIsToldWithStatusTwo )
{
    const char* const programHint = "pimvcard: \"pimvcard --help\" shows how to use it\n";
    const char* const printHint = "pimvcard: \"pimvcard print --help\" shows how to use it\n";
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
        const char* m_hint;
    };
    const std::vector<Row> rows = {
        { {}, "pimvcard: no command\n", programHint },
        { { "-" }, "pimvcard: no command\n", programHint },
        { { "--full" }, "pimvcard: Unknown option 'full'.\n", programHint },
        { { "frobnicate" }, "pimvcard: unknown command: frobnicate\n", programHint },
        { { "" }, "pimvcard: unknown command: \"\"\n", programHint },
        { { "\x1B[2J\xFF" }, "pimvcard: unknown command: \\x1b[2J\xEF\xBF\xBD\n", programHint },
        { { "print" }, "pimvcard: no file to print\n", printHint },
        { { "print", "--json" }, "pimvcard: no file to print\n", printHint },
        { { "print", "--frob", "x" }, "pimvcard: Unknown option 'frob'.\n", printHint },
        { { "print", "--full=yes", "x" }, "pimvcard: Unexpected value after '--full'.\n", printHint },
        { { "print", "--json", "--json-lines", "x" },
          "pimvcard: --json and --json-lines contradict each other\n",
          printHint },
        { { "print", "-jJ", "x" }, "pimvcard: --json and --json-lines contradict each other\n", printHint },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err, std::string( row.m_message ) + row.m_hint );
    }
}

TEST( ProgramTest, OptionsMayStandBeforeTheCommand )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", CardText( "FN:x\r\n" ) );
    const ProgramRun before = RunPimvcard( { "--json-lines", "print", book } );
    EXPECT_EQ( before.m_status, 0 );
    EXPECT_EQ( before.m_out, RunPimvcard( { "print", "--json-lines", book } ).m_out );
    EXPECT_EQ( before.m_out, RunPimvcard( { "print", book, "-J" } ).m_out );
}

TEST( ProgramTest, HelpThatCannotBeWrittenIsTold )
{
    const ProgramRun run = ProgramCall( { "--help" } ).WithOutputTo( "/dev/full" ).Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: the output cannot be written: No space left on device\n" );
}

TEST( ProgramTest, ClosedStandardDescriptorsAreErrorsLikeOthers )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", CardText( "FN:x\r\n" ) );
    const ProgramRun noInput = ProgramCall( { "print", "-" } ).WithClosed( STDIN_FILENO ).Run();
    EXPECT_EQ( noInput.m_status, 2 );
    EXPECT_EQ( noInput.m_err.find( "pimvcard: standard input: Bad file descriptor\n" ), 0U ) << noInput.m_err;

    const ProgramRun noOutput = ProgramCall( { "print", book } ).WithClosed( STDOUT_FILENO ).Run();
    EXPECT_EQ( noOutput.m_status, 2 );
    EXPECT_EQ( noOutput.m_err, "pimvcard: the output cannot be written: Bad file descriptor\n" );

    const ProgramRun noMessages = ProgramCall( { "print", book } ).WithClosed( STDERR_FILENO ).Run();
    EXPECT_EQ( noMessages.m_status, 0 );
    EXPECT_EQ( noMessages.m_out.substr( 0, 5 ), "1. x " );
}
