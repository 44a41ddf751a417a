// What a signal leaves of the files that `pimvcard convert` writes: those that were there before.

#include "Outputs/FileDescriptor.h"
#include "ProgramProcess.h"
#include "ProgramRun.h"
#include "TestBooks.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace PimManager::Tools;

namespace
{

// The program with a pipe as its input, which holds it until the test feeds or ends it.
class HeldProgram
{
public:
    explicit HeldProgram( const QList<QByteArray>& a_arguments )
    {
        const FileDescriptor null( open( "/dev/null", O_WRONLY | O_CLOEXEC ) );
        const std::array<int, 2> input = NewPipe();
        const FileDescriptor programsEnd( input[0] );
        m_input = FileDescriptor( input[1] );
        m_child = StartProgram( QList<QByteArray>{ "convert", "-q" } + a_arguments, programsEnd.Number(), null.Number(),
                                null.Number() );
    }
    Q_DISABLE_COPY( HeldProgram )

    void Feed( const QByteArray& a_bytes ) const { FeedPipe( m_input.Number(), a_bytes ); }
    void Signal( int a_signal ) const { EXPECT_EQ( kill( m_child, a_signal ), 0 ); }

    // Signals that come close together may count as one.
    void InterruptUntilEnd() const
    {
        siginfo_t end = {};
        while ( waitid( P_PID, id_t( m_child ), &end, WEXITED | WNOHANG | WNOWAIT ) == 0 && end.si_pid == 0 )
        {
            Signal( SIGINT );
            std::this_thread::sleep_for( std::chrono::milliseconds( 1 ) );
        }
    }

    // \return as WaitFor().
    int Finish()
    {
        m_input.Close();
        return WaitFor( m_child );
    }

private:
    FileDescriptor m_input;
    pid_t m_child = -1;
};

class ConvertSignalsTest : public testing::Test
{
protected:
    ConvertSignalsTest()
    {
        // SIGQUIT and SIGABRT would leave a core.
        const rlimit none = { 0, 0 };
        setrlimit( RLIMIT_CORE, &none );
    }
};

// More than the buffers of the program hold.
QByteArray ManyCards()
{
    return ( PartCard() + CleanCard() ).repeated( 1500 );
}

void ExpectOnlyOldFiles( const Folder& a_folder, const char* a_case )
{
    EXPECT_EQ( NamesIn( a_folder.Path( "" ) ), "page\n" ) << a_case;
    EXPECT_EQ( FileContent( a_folder.Path( "page" ) ).toStdString(), "old" ) << a_case;
}

void WaitForNames( const QByteArray& a_folder, int a_count )
{
    const auto count = [&a_folder] { return QByteArray::fromStdString( NamesIn( a_folder ) ).count( '\n' ); };
    while ( count() < a_count )
        std::this_thread::sleep_for( std::chrono::milliseconds( 1 ) );
}

} // namespace

TEST_F( ConvertSignalsTest, NothingIsLeftWhenASignalEndsTheProgram )
{
    struct Row
    {
        const char* m_case;
        QByteArray m_input;
        int m_signal;
    };
    const std::vector<Row> rows = {
        { "SIGTERM before the first card", "B", SIGTERM },
        { "SIGTERM between cards", ManyCards(), SIGTERM },
        { "SIGTERM inside a card", ManyCards() + "BEGIN:VCARD\r\nFN:x", SIGTERM },
        { "SIGHUP", ManyCards(), SIGHUP },
        { "SIGQUIT", ManyCards(), SIGQUIT },
        { "SIGABRT", ManyCards(), SIGABRT },
        { "SIGXCPU", ManyCards(), SIGXCPU },
    };
    for ( const Row& row : rows )
    {
        const Folder folder;
        const QByteArray page = folder.Write( "page", "old" );
        HeldProgram program( { "--force", "-t", "html", "-o", page, "--rejects", folder.Path( "rejects" ), "-" } );
        program.Feed( row.m_input );
        EXPECT_EQ( QByteArray::fromStdString( NamesIn( folder.Path( "" ) ) ).count( ".pimvcard-" ), 2 ) << row.m_case;
        program.Signal( row.m_signal );
        EXPECT_EQ( program.Finish(), -row.m_signal ) << row.m_case;
        ExpectOnlyOldFiles( folder, row.m_case );
    }
}

TEST_F( ConvertSignalsTest, NothingIsLeftAfterTheSecondCtrlC )
{
    const Folder folder;
    const QByteArray page = folder.Write( "page", "old" );
    const QByteArray pipe = folder.Path( "pipe" );
    ASSERT_EQ( mkfifo( pipe.constData(), 0600 ), 0 );
    const FileDescriptor reader( open( pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC ) );
    ASSERT_GT( fcntl( reader.Number(), F_SETPIPE_SZ, 4096 ), 0 );
    HeldProgram program( { "--force", "-t", "html", "-o", page, "--rejects", pipe, "-" } );
    // Nobody empties the pipe, so the program cannot end in order.
    program.Feed( PartCard().repeated( 5000 ) );
    program.InterruptUntilEnd();
    EXPECT_EQ( program.Finish(), -SIGINT );
    ASSERT_EQ( unlink( pipe.constData() ), 0 );
    ExpectOnlyOldFiles( folder, "Ctrl-C twice" );
}

TEST_F( ConvertSignalsTest, NothingIsLeftWhenTheProgramWaitsForTheReaderOfAPipe )
{
    for ( const int signal : { SIGTERM, SIGHUP, SIGINT } )
    {
        const Folder folder;
        const QByteArray pipe = folder.Path( "pipe" );
        folder.Write( "page", "old" );
        ASSERT_EQ( mkfifo( pipe.constData(), 0600 ), 0 );
        HeldProgram program( { "--rejects", folder.Path( "rejects" ), "-t", "html", "-o", pipe, "-" } );
        WaitForNames( folder.Path( "" ), 3 );
        program.Signal( signal );
        EXPECT_EQ( program.Finish(), -signal );
        ASSERT_EQ( unlink( pipe.constData() ), 0 );
        ExpectOnlyOldFiles( folder, "waiting for a reader" );
    }
}

TEST_F( ConvertSignalsTest, FirstCtrlCKeepsWhatWasRead )
{
    const Folder folder;
    const QByteArray page = folder.Write( "page", "old" );
    HeldProgram program( { "--force", "-t", "html", "-o", page, "-" } );
    program.Feed( CleanCard() );
    program.Signal( SIGINT );
    EXPECT_EQ( program.Finish(), 130 );
    EXPECT_EQ( NamesIn( folder.Path( "" ) ), "page\n" );
    EXPECT_TRUE( FileContent( page ).endsWith( "</html>\n" ) );
    EXPECT_EQ( FileContent( page ).count( "<details class=\"contact\"" ), 1 );
}

TEST_F( ConvertSignalsTest, PicturesThatAreCompleteStay )
{
    const Folder folder;
    const QByteArray picture = PngPicture() + QByteArray( 10000, 'x' );
    const QByteArray card = CardText( "VERSION:3.0\r\nFN:Nell\r\n" + PhotoLine( picture ) );
    HeldProgram program( { "--photos", folder.Path( "photos" ), "-" } );
    // More than the program holds back at the start of a book.
    program.Feed( card.repeated( 120 ) );
    WaitForNames( folder.Path( "photos" ), 2 );
    program.Signal( SIGTERM );
    EXPECT_EQ( program.Finish(), -SIGTERM );
    QList<QByteArray> names = QByteArray::fromStdString( NamesIn( folder.Path( "photos" ) ) ).split( '\n' );
    names.removeAll( QByteArray() );
    for ( const QByteArray& name : names )
        EXPECT_EQ( FileContent( folder.Path( "photos/" + name ) ), picture ) << name.constData();
    EXPECT_GE( names.size(), 2 );
}
