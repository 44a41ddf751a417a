// The files that the options of `pimvcard convert` name.

#include "Outputs/FileDescriptor.h"
#include "ProgramProcess.h"
#include "ProgramRun.h"
#include "TestBooks.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace PimManager::Tools;

namespace
{

const QByteArray s_kRejects = "\x01\x02 %%%\r\n";

// Writes the rejects of one card, s_kRejects, and more.
ProgramCall RejectsTo( const QByteArray& a_name, const QList<QByteArray>& a_more = {} )
{
    return ProgramCall( QList<QByteArray>{ "convert", "-q", "--rejects", a_name } + a_more + QList<QByteArray>{ "-" } )
        .WithInput( PartCard() );
}

std::string CannotBeWritten( const QByteArray& a_name, const char* a_reason )
{
    return "pimvcard: " + a_name.toStdString() + ": cannot be written: " + a_reason + "\n";
}

// All that comes out of a pipe until its other end is closed.
QByteArray ReadAll( int a_descriptor )
{
    QByteArray all;
    std::array<char, 4096> piece = {};
    for ( ssize_t count = 1; count > 0; all.append( piece.data(), int( qMax( count, ssize_t( 0 ) ) ) ) )
        count = read( a_descriptor, piece.data(), piece.size() );
    return all;
}

} // namespace

TEST( OutputFilesTest, ExistingFileIsReplacedOnlyWithForce )
{
    const Folder folder;
    const QByteArray rejects = folder.Write( "rejects", "old" );
    ASSERT_EQ( chmod( rejects.constData(), 0640 ), 0 );
    for ( const char* option : { "--rejects", "--output" } )
    {
        const ProgramRun run =
            ProgramCall( { "convert", "-t", "html", option, rejects, "-" } ).WithInput( PartCard() ).Run();
        EXPECT_EQ( run.m_status, 2 ) << option;
        EXPECT_EQ( run.m_out, "" ) << option;
        EXPECT_EQ( run.m_err, CannotBeWritten( rejects, "it exists already; --force replaces it" ) ) << option;
        EXPECT_EQ( FileContent( rejects ).toStdString(), "old" ) << option;
    }
    EXPECT_EQ( RejectsTo( rejects, { "--force" } ).Run().m_status, 1 );
    EXPECT_EQ( FileContent( rejects ), s_kRejects );
    EXPECT_EQ( ModeOf( rejects ), 0640U );
    EXPECT_EQ( RejectsTo( rejects, { "-f" } ).Run().m_status, 1 );
    EXPECT_EQ( NamesIn( folder.Path( "" ) ), "rejects\n" );
}

TEST( OutputFilesTest, FileThatAppearsDuringTheRunIsKept )
{
    const Folder folder;
    const QByteArray rejects = folder.Path( "rejects" );
    const FileDescriptor messages( open( folder.Write( "messages", "" ).constData(), O_WRONLY | O_CLOEXEC ) );
    const std::array<int, 2> input = NewPipe();
    FileDescriptor programsEnd( input[0] );
    FileDescriptor testsEnd( input[1] );
    const pid_t program =
        StartProgram( { "convert", "-q", "--rejects", rejects, "-" }, input[0], messages.Number(), messages.Number() );
    FeedPipe( input[1], PartCard() );
    folder.Write( "rejects", "mine" );
    testsEnd.Close();
    EXPECT_EQ( WaitFor( program ), 2 );
    EXPECT_EQ( FileContent( rejects ).toStdString(), "mine" );
    EXPECT_TRUE( FileContent( folder.Path( "messages" ) )
                     .contains( CannotBeWritten( rejects, "it exists already; --force replaces it" ).c_str() ) );
    EXPECT_EQ( NamesIn( folder.Path( "" ) ), "messages\nrejects\n" );
}

TEST( OutputFilesTest, NewFileIsForItsOwnerAloneWhateverTheUmask )
{
    for ( const mode_t mask : { 0U, 022U, 077U } )
    {
        const Folder folder;
        EXPECT_EQ( RejectsTo( folder.Path( "rejects" ) ).WithUmask( mask ).Run().m_status, 1 ) << mask;
        EXPECT_EQ( ModeOf( folder.Path( "rejects" ) ), 0600U ) << mask;
    }
}

TEST( OutputFilesTest, LinkIsKeptAndItsTargetWritten )
{
    struct Row
    {
        const char* m_target;
        QList<QByteArray> m_force;
    };
    for ( const Row& row : { Row{ "old", { "--force" } }, Row{ "new", {} }, Row{ "sub/new", {} } } )
    {
        const Folder folder;
        folder.Write( "old", "old" );
        ASSERT_EQ( mkdir( folder.Path( "sub" ).constData(), 0700 ), 0 );
        ASSERT_EQ( symlink( row.m_target, folder.Path( "link" ).constData() ), 0 );
        EXPECT_EQ( RejectsTo( folder.Path( "link" ), row.m_force ).Run().m_status, 1 ) << row.m_target;
        struct stat status = {};
        ASSERT_EQ( lstat( folder.Path( "link" ).constData(), &status ), 0 );
        EXPECT_TRUE( S_ISLNK( status.st_mode ) ) << row.m_target;
        EXPECT_EQ( FileContent( folder.Path( row.m_target ) ), s_kRejects ) << row.m_target;
    }
}

TEST( OutputFilesTest, InputIsNoOutput )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", PartCard() );
    ASSERT_EQ( symlink( "book", folder.Path( "symlink" ).constData() ), 0 );
    ASSERT_EQ( link( book.constData(), folder.Path( "hardlink" ).constData() ), 0 );
    for ( const char* option : { "--rejects", "--output" } )
    {
        for ( const char* name : { "book", "symlink", "hardlink", "./book" } )
        {
            const QByteArray path = folder.Path( name );
            const ProgramRun run = RunPimvcard( { "convert", "-t", "html", "--force", option, path, book } );
            EXPECT_EQ( run.m_status, 2 ) << option << name;
            EXPECT_EQ( run.m_err, CannotBeWritten( path, "it is one of the files to read; choose another name" ) )
                << option;
            EXPECT_EQ( FileContent( book ), PartCard() ) << option << name;
        }
    }
    EXPECT_EQ( NamesIn( folder.Path( "" ) ), "book\nhardlink\nsymlink\n" );
}

TEST( OutputFilesTest, InputIsNotStandardOutput )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book", PartCard() );
    for ( const char* command : { "list", "show", "check" } )
    {
        const ProgramRun run = ProgramCall( { command, book } ).WithOutputTo( book ).Run();
        EXPECT_EQ( run.m_status, 2 ) << command;
        EXPECT_EQ( run.m_err,
                   CannotBeWritten( "standard output", "it is one of the files to read; choose another name" ) )
            << command;
        EXPECT_EQ( FileContent( book ), PartCard() ) << command;
    }
}

TEST( OutputFilesTest, TwoOutputsToOneFileAreRefused )
{
    const Folder folder;
    const QByteArray file = folder.Write( "file", "old" );
    ASSERT_EQ( symlink( "file", folder.Path( "symlink" ).constData() ), 0 );
    ASSERT_EQ( symlink( "new", folder.Path( "dangling" ).constData() ), 0 );
    ASSERT_EQ( link( file.constData(), folder.Path( "hardlink" ).constData() ), 0 );
    struct Row
    {
        QByteArray m_rejects;
        QByteArray m_html;
    };
    const std::vector<Row> rows = {
        { file, file },
        { file, folder.Path( "symlink" ) },
        { folder.Path( "hardlink" ), file },
        { folder.Path( "new" ), folder.Path( "new" ) },
        { folder.Path( "new" ), folder.Path( "./new" ) },
        { folder.Path( "new" ), folder.Path( "dangling" ) },
        { "-", "/dev/stdout" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = RejectsTo( row.m_rejects, { "--force", "-t", "html", "-o", row.m_html } ).Run();
        EXPECT_EQ( run.m_status, 2 ) << row.m_html.constData();
        EXPECT_EQ( run.m_out, "" ) << row.m_html.constData();
        EXPECT_EQ( run.m_err, CannotBeWritten( row.m_html, "another output goes there; choose another name" ) );
        EXPECT_EQ( FileContent( file ).toStdString(), "old" ) << row.m_html.constData();
        EXPECT_EQ( NamesIn( folder.Path( "" ) ), "dangling\nfile\nhardlink\nsymlink\n" ) << row.m_html.constData();
    }
}

TEST( OutputFilesTest, RefusedOutputLeavesNothingOfTheOthers )
{
    const Folder folder;
    for ( const char* form : { "json", "json-lines", "html" } )
    {
        const ProgramRun run = ProgramCall( { "convert", "-t", form, "--photos", folder.Path( "photos" ), "--rejects",
                                              folder.Path( "rejects" ), "-o", folder.Path( "missing/page" ), "-" } )
                                   .WithInput( PartCard() )
                                   .Run();
        EXPECT_EQ( run.m_status, 2 ) << form;
        EXPECT_EQ( run.m_out, "" ) << form;
        EXPECT_EQ( NamesIn( folder.Path( "" ) ), "" ) << form;
    }
}

TEST( OutputFilesTest, DashIsStandardOutput )
{
    for ( const char* name : { "-", "/dev/stdout", "/dev/fd/1" } )
    {
        const ProgramRun run = RejectsTo( name ).Run();
        EXPECT_EQ( run.m_status, 1 ) << name;
        EXPECT_EQ( run.m_out, s_kRejects.toStdString() ) << name;
        EXPECT_EQ( run.m_err, "" ) << name;
    }
}

TEST( OutputFilesTest, StandardOutputHasRoomForOneOutput )
{
    for ( const char* form : { "json", "json-lines", "html" } )
    {
        const ProgramRun run =
            ProgramCall( { "convert", "-t", form, "--rejects", "-", "-" } ).WithInput( CleanCard() ).Run();
        EXPECT_EQ( run.m_status, 2 ) << form;
        EXPECT_EQ( run.m_out, "" ) << form;
        EXPECT_EQ( run.m_err, CannotBeWritten( "standard output", "another output goes there; choose another name" ) )
            << form;
    }
}

TEST( OutputFilesTest, StandardOutputIsWrittenWhereItStands )
{
    const Folder folder;
    const FileDescriptor out( open( folder.Write( "out", "" ).constData(), O_WRONLY | O_CLOEXEC ) );
    const FileDescriptor null( open( "/dev/null", O_RDWR | O_CLOEXEC ) );
    ASSERT_EQ( write( out.Number(), "first ", 6 ), 6 );
    const QByteArray book = folder.Write( "book", PartCard() );
    const pid_t program =
        StartProgram( { "convert", "-q", "-r", "/dev/stdout", book }, null.Number(), out.Number(), null.Number() );
    EXPECT_EQ( WaitFor( program ), 1 );
    EXPECT_EQ( FileContent( folder.Path( "out" ) ), "first " + s_kRejects );
}

TEST( OutputFilesTest, DevicesAreWrittenAndMayBeShared )
{
    EXPECT_EQ( RejectsTo( "/dev/null", { "-t", "html", "-o", "/dev/null" } ).Run().m_status, 1 );
    struct stat status = {};
    ASSERT_EQ( stat( "/dev/null", &status ), 0 );
    EXPECT_TRUE( S_ISCHR( status.st_mode ) );
}

TEST( OutputFilesTest, PipeGetsTheBytes )
{
    const Folder folder;
    const QByteArray pipe = folder.Path( "pipe" );
    ASSERT_EQ( mkfifo( pipe.constData(), 0600 ), 0 );
    ASSERT_EQ( symlink( "pipe", folder.Path( "link" ).constData() ), 0 );
    for ( const char* name : { "pipe", "link" } )
    {
        QByteArray received;
        std::thread reader(
            [&pipe, &received]
            {
                const FileDescriptor end( open( pipe.constData(), O_RDONLY | O_CLOEXEC ) );
                received = ReadAll( end.Number() );
            } );
        EXPECT_EQ( RejectsTo( folder.Path( name ) ).Run().m_status, 1 ) << name;
        reader.join();
        EXPECT_EQ( received, s_kRejects ) << name;
    }
    EXPECT_EQ( NamesIn( folder.Path( "" ) ), "link\npipe\n" );
}

TEST( OutputFilesTest, BrokenPipeEndsQuietlyWithTheUsualStatus )
{
    const Folder folder;
    const QByteArray large = folder.Write( "large", CleanCard().repeated( 3000 ) );
    const ProgramRun out =
        ProgramCall( { "convert", "-q", "-t", "html", "-o", "-", large, large } ).WithBrokenPipe().Run();
    EXPECT_EQ( out.m_status, 0 );
    EXPECT_EQ( out.m_err, "" );

    const QByteArray pipe = folder.Path( "pipe" );
    ASSERT_EQ( mkfifo( pipe.constData(), 0600 ), 0 );
    std::thread reader( [&pipe] { FileDescriptor( open( pipe.constData(), O_RDONLY | O_CLOEXEC ) ); } );
    const ProgramRun named = RunPimvcard( { "convert", "-q", "-t", "html", "-o", pipe, large } );
    reader.join();
    EXPECT_EQ( named.m_status, 0 );
    EXPECT_EQ( named.m_err, named.LastMessage() );
}

TEST( OutputFilesTest, FullDiskKeepsTheOldFileAndLeavesNothing )
{
    // The style of the page alone is larger than the limit, and what waits for the page is smaller.
    const Folder folder;
    const QByteArray page = folder.Write( "page", "old" );
    const QByteArray rejects = folder.Path( "rejects" );
    const ProgramRun run =
        ProgramCall( { "convert", "-q", "--force", "-t", "html", "-o", page, "--rejects", rejects, "-" } )
            .WithInput( PartCard() )
            .WithFileSizeLimit( 10000 )
            .Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, CannotBeWritten( page, "File too large" ) );
    EXPECT_EQ( FileContent( page ).toStdString(), "old" );
    EXPECT_EQ( FileContent( rejects ), s_kRejects );
    EXPECT_EQ( NamesIn( folder.Path( "" ) ), "page\nrejects\n" );
}

TEST( OutputFilesTest, FullDeviceIsReportedAndTheOtherOutputsAreComplete )
{
    const Folder folder;
    const QByteArray rejects = folder.Path( "rejects" );
    const std::string failure = CannotBeWritten( "/dev/full", "No space left on device" );
    const ProgramRun full = RejectsTo( "/dev/full", { "-t", "json" } ).Run();
    EXPECT_EQ( full.m_status, 2 );
    EXPECT_NE( full.m_out.find( "Tobias" ), std::string::npos );
    EXPECT_EQ( full.m_err, failure );
    for ( const char* format : { "json", "json-lines", "html" } )
    {
        const ProgramRun run = RejectsTo( rejects, { "--force", "-t", format, "-o", "/dev/full" } ).Run();
        EXPECT_EQ( run.m_status, 2 ) << format;
        EXPECT_EQ( run.m_err, failure ) << format;
        EXPECT_EQ( FileContent( rejects ), s_kRejects ) << format;
    }
}

TEST( OutputFilesTest, TotalsDoNotCountWhatCannotBeWritten )
{
    for ( const char* format : { "3.0", "jcard", "csv" } )
    {
        const ProgramRun run = ProgramCall( { "convert", "-t", format, "-o", "/dev/full", "-" } )
                                   .WithInput( CleanCard().repeated( 5 ) )
                                   .Run();
        EXPECT_EQ( run.m_status, 2 ) << format;
        EXPECT_EQ( run.LastMessage().find( "written" ), std::string::npos ) << run.m_err;
    }
}

TEST( OutputFilesTest, FileStaysAsItIsIfNothingCanBeRead )
{
    const Folder folder;
    const QByteArray missing = folder.Path( "missing" );
    for ( const char* const name : { "a.vcf", "a.jcard", "a.csv", "a.json", "a.jsonl", "a.html" } )
    {
        const QByteArray path = folder.Write( name, "old" );
        const ProgramRun run = RunPimvcard( { "convert", "-q", "--force", "-o", path, missing } );
        EXPECT_EQ( run.m_status, 2 ) << name;
        EXPECT_EQ( run.m_err, "pimvcard: " + missing.toStdString() + ": No such file or directory\n" +
                                  CannotBeWritten( path, "no file could be read" ) );
        EXPECT_EQ( FileContent( path ), "old" ) << name;
    }
    const QByteArray sorted = folder.Path( "sorted.vcf" );
    EXPECT_EQ( RunPimvcard( { "convert", "-q", "--sort", "-o", sorted, missing } ).m_status, 2 );
    EXPECT_FALSE( QFile::exists( QFile::decodeName( sorted ) ) );
    EXPECT_EQ( RunPimvcard( { "convert", "-q", "-t", "csv", "-C", "name", missing } ).m_out, "name\r\n" );
    const QByteArray book = folder.Write( "book", CleanCard() );
    EXPECT_EQ( RunPimvcard( { "convert", "-q", "-o", sorted, missing, book } ).m_status, 2 );
    EXPECT_TRUE( FileContent( sorted ).contains( "FN:Nell\r\n" ) );
}

TEST( OutputFilesTest, PathThatCannotBeWrittenEndsTheRun )
{
    const Folder folder;
    for ( const char* option : { "--rejects", "--output" } )
    {
        for ( const QByteArray& name : { folder.Path( "a/b" ), folder.Path( "" ), QByteArray( "" ) } )
        {
            const ProgramRun run =
                ProgramCall( { "convert", "-t", "json", option, name, "-" } ).WithInput( CleanCard() ).Run();
            EXPECT_EQ( run.m_status, 2 ) << option << name.constData();
            EXPECT_EQ( run.m_out, "" ) << option << name.constData();
            EXPECT_NE( run.m_err.find( ": cannot be written: " ), std::string::npos ) << run.m_err;
        }
    }
}
