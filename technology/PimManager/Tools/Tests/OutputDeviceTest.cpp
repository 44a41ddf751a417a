#include "Outputs/OutputDevice.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

using namespace PimManager::Tools;

namespace
{

// A file without a name, gone with the test.
class ScratchFile
{
public:
    ScratchFile() :
        m_descriptor( memfd_create( "scratch", MFD_CLOEXEC ) )
    {
        EXPECT_GE( m_descriptor, 0 );
    }
    ~ScratchFile() { close( m_descriptor ); }
    Q_DISABLE_COPY( ScratchFile )

    int Descriptor() const { return m_descriptor; }

    QByteArray Content() const
    {
        QByteArray content( static_cast<int>( lseek( m_descriptor, 0, SEEK_END ) ), '\0' );
        EXPECT_EQ( pread( m_descriptor, content.data(), static_cast<size_t>( content.size() ), 0 ), content.size() );
        return content;
    }

private:
    const int m_descriptor;
};

} // namespace

TEST( OutputDeviceTest, BytesArriveInOrderWhateverTheirNumber )
{
    for ( int size : { 0, 1, 1000, 65535, 65536, 65537, 200000 } )
    {
        const ScratchFile file;
        QByteArray expected;
        {
            OutputDevice device( file.Descriptor() );
            for ( char letter : { 'a', 'b', 'c' } )
            {
                EXPECT_EQ( device.write( QByteArray( size, letter ) ), size );
                expected += QByteArray( size, letter );
            }
            EXPECT_EQ( device.Error(), 0 );
        }
        EXPECT_TRUE( file.Content() == expected ) << size;
    }
}

TEST( OutputDeviceTest, FlushSendsWhatIsBuffered )
{
    const ScratchFile file;
    OutputDevice device( file.Descriptor() );
    device.write( "x" );
    EXPECT_TRUE( file.Content().isEmpty() );
    device.Flush();
    EXPECT_EQ( file.Content().toStdString(), "x" );
}

TEST( OutputDeviceTest, FullDiskIsRemembered )
{
    const int full = open( "/dev/full", O_WRONLY | O_CLOEXEC );
    ASSERT_GE( full, 0 );
    {
        OutputDevice device( full );
        device.write( "x" );
        EXPECT_EQ( device.Error(), 0 );
        device.Flush();
        EXPECT_EQ( device.Error(), ENOSPC );
        EXPECT_EQ( device.write( QByteArray( 200000, 'y' ) ), 200000 );
        EXPECT_EQ( device.Error(), ENOSPC );
    }
    close( full );
}

TEST( OutputDeviceTest, FirstFailureIsTheOneRemembered )
{
    std::array<int, 2> ends = { -1, -1 };
    ASSERT_EQ( pipe( ends.data() ), 0 );
    std::signal( SIGPIPE, SIG_IGN );
    close( ends[0] );
    {
        OutputDevice device( ends[1] );
        device.write( "x" );
        device.Flush();
        close( ends[1] );
        device.write( "y" );
        device.Flush();
        EXPECT_EQ( device.Error(), EPIPE );
    }
    std::signal( SIGPIPE, SIG_DFL );
}

TEST( OutputDeviceTest, FullPipeInNonBlockingModeIsWaitedFor )
{
    std::array<int, 2> ends = { -1, -1 };
    ASSERT_EQ( pipe2( ends.data(), O_NONBLOCK ), 0 );
    ssize_t expected = 1;
    while ( write( ends[1], "x", 1 ) == 1 )
        ++expected;
    ssize_t received = 0;
    std::thread reader(
        [&ends, &received]
        {
            // The writer meets the full pipe first. Should it be late, the test only sees less.
            std::this_thread::sleep_for( std::chrono::milliseconds( 100 ) );
            fcntl( ends[0], F_SETFL, 0 );
            QByteArray taken( 65536, '\0' );
            for ( ssize_t count = 1; count > 0; received += count )
                count = read( ends[0], taken.data(), static_cast<size_t>( taken.size() ) );
        } );
    {
        OutputDevice device( ends[1] );
        device.write( "x" );
        device.Flush();
        EXPECT_EQ( device.Error(), 0 );
    }
    close( ends[1] );
    reader.join();
    close( ends[0] );
    EXPECT_EQ( received, expected );
}
