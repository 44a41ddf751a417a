#include "Reading/InputDevice.h"

#include "ProgramRun.h"
#include "Terminal/Interrupt.h"
#include "ToolsTestText.h"

#include <array>
#include <csignal>
#include <unistd.h>

using namespace PimManager::Tools;

TEST( InputDeviceTest, BytesComeInOrderToTheEnd )
{
    const Folder folder;
    const QByteArray bytes = QByteArray( "\0\xFF\r\n", 4 ).repeated( 100000 );
    InputDevice input( folder.Write( "book", bytes ) );
    EXPECT_EQ( input.FileSize(), bytes.size() );
    int reads = 0;
    input.SetReadHandler( [&reads] { ++reads; } );
    QByteArray taken;
    for ( QByteArray piece = input.read( 1000 ); !piece.isEmpty(); piece = input.read( 1000 ) )
        taken += piece;
    EXPECT_TRUE( taken == bytes );
    EXPECT_TRUE( input.atEnd() );
    EXPECT_EQ( input.Error(), 0 );
    EXPECT_EQ( input.BytesRead(), bytes.size() );
    EXPECT_EQ( reads, 401 );
}

TEST( InputDeviceTest, FailuresAreToldInWords )
{
    const Folder folder;
    struct Row
    {
        QByteArray m_name;
        const char* m_reason;
    };
    for ( const Row& row :
          { Row{ folder.Path( "missing" ), "No such file or directory" },
            Row{ folder.Path( "" ), "is a folder; name the files in it" }, Row{ "", "No such file or directory" } } )
    {
        const InputDevice input( row.m_name );
        EXPECT_FALSE( input.isOpen() );
        EXPECT_EQ( Utf8( input.Reason() ), row.m_reason );
    }
}

TEST( InputDeviceTest, FailureWhileReadingEndsTheBytes )
{
    InputDevice input( "/proc/self/mem" );
    ASSERT_EQ( input.Error(), 0 );
    EXPECT_TRUE( input.read( 10 ).isEmpty() );
    EXPECT_EQ( Utf8( input.Reason() ), "Input/output error" );
    EXPECT_TRUE( input.atEnd() );
}

TEST( InputDeviceTest, CtrlCEndsTheBytesOfAnOpenPipe )
{
    std::array<int, 2> ends = { -1, -1 };
    ASSERT_EQ( pipe( ends.data() ), 0 );
    ASSERT_EQ( write( ends[1], "abc", 3 ), 3 );
    {
        const Interrupt interrupt;
        InputDevice input( "/proc/self/fd/" + QByteArray::number( ends[0] ) );
        EXPECT_EQ( input.FileSize(), 0 );
        EXPECT_EQ( input.read( 10 ).toStdString(), "abc" );
        EXPECT_FALSE( Interrupt::IsRequested() );
        raise( SIGINT );
        EXPECT_TRUE( Interrupt::IsRequested() );
        EXPECT_TRUE( input.read( 10 ).isEmpty() ) << "without Ctrl-C this would wait for ever";
        EXPECT_TRUE( input.atEnd() );
        EXPECT_EQ( input.Error(), 0 );
    }
    EXPECT_EQ( Interrupt::Descriptor(), -1 );
    close( ends[0] );
    close( ends[1] );
}

TEST( InputDeviceTest, SignalThatIsSwitchedOffStaysOff )
{
    std::signal( SIGINT, SIG_IGN );
    {
        const Interrupt interrupt;
        raise( SIGINT );
        EXPECT_FALSE( Interrupt::IsRequested() );
    }
    EXPECT_EQ( std::signal( SIGINT, SIG_DFL ), SIG_IGN );
}
