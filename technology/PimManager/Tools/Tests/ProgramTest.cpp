#include "ProgramRun.h"

#include "ToolsTestText.h"

#include <unistd.h>
#include <vector>

using namespace PimManager::Tools;

TEST( ProgramTest, HelpGoesToStandardOutput )
{
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_says;
    };
    const std::vector<Row> rows = {
        { { "--help" }, "Usage: pimvcard [COMMAND] [options] BOOK...\n" },
        { { "-h" }, "-v, --version" },
        { { "help" }, "\n  convert " },
        { { "help", "list" }, "Usage: pimvcard [options] list BOOK...\n" },
        { { "list", "--help" }, "Usage: pimvcard [options] list BOOK...\n" },
        { { "help", "help" }, "Usage: pimvcard [options] help [COMMAND]\n" },
        { { "check", "-h" }, "--extents" },
        { { "--help", "check" }, "Exit status: 0 everything is delivered" },
        { { "show", "x.vcf", "-h" }, "- is standard input" },
        { { "x.vcf", "-h" }, "Usage: pimvcard [options] list BOOK...\n" },
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
          { QList<QByteArray>{ "--version" }, QList<QByteArray>{ "-v" }, QList<QByteArray>{ "check", "--version" } } )
    {
        const ProgramRun run = RunPimvcard( arguments );
        EXPECT_EQ( run.m_status, 0 );
        EXPECT_EQ( run.m_out, "pimvcard " PIMVCARD_VERSION "\n" );
        EXPECT_EQ( run.m_err, "" );
    }
}

TEST( ProgramTest, WrongUsageIsReportedWithStatusTwo )
{
    const char* const programHint = "pimvcard: \"pimvcard --help\" shows how to use it\n";
    const char* const checkHint = "pimvcard: \"pimvcard check --help\" shows how to use it\n";
    struct Row
    {
        QList<QByteArray> m_arguments;
        const char* m_message;
        const char* m_hint;
    };
    const std::vector<Row> rows = {
        { {}, "pimvcard: no command and no file; \"pimvcard BOOK\" lists an address book\n", programHint },
        { { "--quiet" }, "pimvcard: no command and no file; \"pimvcard BOOK\" lists an address book\n", programHint },
        { { "--full" }, "pimvcard: Unknown option 'full'.\n", programHint },
        { { "--charset" }, "pimvcard: Missing value after '--charset'.\n", programHint },
        { { "-q", "-c" }, "pimvcard: Missing value after '-c'.\n", programHint },
        { { "frobnicate" }, "pimvcard: frobnicate is neither a command nor a file.\n", programHint },
        { { "chekc", "x.vcf" },
          "pimvcard: chekc is neither a command nor a file. Did you mean \"check\"?\n",
          programHint },
        { { "help", "lsit" }, "pimvcard: lsit is neither a command nor a file. Did you mean \"list\"?\n", programHint },
        { { "" }, "pimvcard: \"\" is neither a command nor a file.\n", programHint },
        { { "\x1B[2J\xFF" }, "pimvcard: \\x1b[2J\xEF\xBF\xBD is neither a command nor a file.\n", programHint },
        { { "check" }, "pimvcard: no file to check; - is standard input\n", checkHint },
        { { "check", "--extents" }, "pimvcard: no file to check; - is standard input\n", checkHint },
        { { "check", "--frob", "x" }, "pimvcard: Unknown option 'frob'.\n", checkHint },
        { { "check", "--extents=yes", "x" }, "pimvcard: Unexpected value after '--extents'.\n", checkHint },
        { { "check", "-es", "x" },
          "pimvcard: --extents and --strict cannot be combined; run check once for each\n",
          checkHint },
        { { "check", "-eS", "x" },
          "pimvcard: --extents and --standard cannot be combined; run check once for each\n",
          checkHint },
        { { "check", "-sS", "x" },
          "pimvcard: --standard and --strict cannot be combined; run check once for each\n",
          checkHint },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RunPimvcard( row.m_arguments );
        EXPECT_EQ( run.m_status, 2 ) << row.m_message;
        EXPECT_EQ( run.m_out, "" ) << row.m_message;
        EXPECT_EQ( run.m_err, std::string( row.m_message ) + row.m_hint );
    }
}

TEST( ProgramTest, OptionsMayPrecedeTheCommand )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", CardText( "FN:x\r\n" ) );
    const ProgramRun before = RunPimvcard( { "--to", "json", "-q", "convert", book } );
    EXPECT_EQ( before.m_status, 0 ) << before.m_err;
    EXPECT_EQ( before.m_out.substr( 0, 3 ), "[\n{" );
    EXPECT_EQ( before.m_out, RunPimvcard( { "convert", "--to", "json", book } ).m_out );
    EXPECT_EQ( before.m_out, RunPimvcard( { "convert", book, "-t", "json" } ).m_out );
    EXPECT_EQ( before.m_out, RunPimvcard( { "-qt", "json", "convert", book } ).m_out );
}

TEST( ProgramTest, HelpThatCannotBeWrittenIsReported )
{
    const ProgramRun run = ProgramCall( { "--help" } ).WithOutputTo( "/dev/full" ).Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: the output cannot be written: No space left on device\n" );
}

TEST( ProgramTest, ClosedStandardDescriptorsAreErrorsLikeOthers )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", CardText( "FN:x\r\n" ) );
    const ProgramRun noInput = ProgramCall( { "list", "-" } ).WithClosed( STDIN_FILENO ).Run();
    EXPECT_EQ( noInput.m_status, 2 );
    EXPECT_EQ( noInput.m_err.find( "pimvcard: standard input: Bad file descriptor\n" ), 0U ) << noInput.m_err;

    const ProgramRun noOutput = ProgramCall( { "list", book } ).WithClosed( STDOUT_FILENO ).Run();
    EXPECT_EQ( noOutput.m_status, 2 );
    EXPECT_EQ( noOutput.m_err, "pimvcard: the output cannot be written: Bad file descriptor\n" );

    const ProgramRun noMessages = ProgramCall( { "list", book } ).WithClosed( STDERR_FILENO ).Run();
    EXPECT_EQ( noMessages.m_status, 0 );
    EXPECT_EQ( noMessages.m_out, "NAME  NUMBER  MAIL  ORGANISATION\nx\n" );
}
