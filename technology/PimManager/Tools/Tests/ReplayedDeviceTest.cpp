#include "Reading/ReplayedDevice.h"

#include "Checks/TrickleDevice.h"
#include "Reading/InputDevice.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <gtest/gtest.h>

#include <QBuffer>

#include <array>
#include <thread>
#include <unistd.h>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

QByteArray Book()
{
    QByteArray book;
    for ( int i = 0; i < 20000; ++i )
        book += "BEGIN:VCARD\r\nFN:Jane " + QByteArray::number( i ) + "\r\nEND:VCARD\r\n";
    return book;
}

// All that is read, in pieces.
QByteArray Rest( QIODevice& a_device )
{
    QByteArray bytes;
    for ( QByteArray piece = a_device.read( 1000 ); !piece.isEmpty(); piece = a_device.read( 1000 ) )
        bytes += piece;
    return bytes;
}

int CardsOf( QIODevice& a_device )
{
    PimContactReader reader;
    PimContactCard card;
    int cards = 0;
    while ( reader.Next( a_device, card ) == PimContactNext::Card )
        ++cards;
    EXPECT_EQ( reader.Next( a_device, card ), PimContactNext::End ) << reader.Report().ErrorText().toStdString();
    return cards;
}

} // namespace

TEST( ReplayedDeviceTest, AllBytesAreReadWhateverWasHeldBack )
{
    const QByteArray book = Book();
    for ( const int held : { 0, 1, 999, 1000, 100000, static_cast<int>( book.size() ), 2000000 } )
    {
        QBuffer source;
        source.setData( book );
        source.open( QIODevice::ReadOnly );
        ReplayedDevice device( source );
        EXPECT_EQ( device.HoldBack( held ), book.left( held ) ) << held;
        EXPECT_EQ( device.bytesAvailable(), book.size() ) << held;
        EXPECT_FALSE( device.atEnd() ) << held;
        EXPECT_TRUE( Rest( device ) == book ) << held;
        EXPECT_TRUE( device.atEnd() ) << held;
    }
}

TEST( ReplayedDeviceTest, MoreMayBeHeldBackLater )
{
    QBuffer source;
    source.setData( "abcdef" );
    source.open( QIODevice::ReadOnly );
    ReplayedDevice device( source );
    EXPECT_EQ( device.HoldBack( 2 ), "ab" );
    EXPECT_EQ( device.HoldBack( 1 ), "ab" );
    EXPECT_EQ( device.HoldBack( 4 ), "abcd" );
    EXPECT_EQ( Rest( device ), "abcdef" );
}

TEST( ReplayedDeviceTest, PipeHasTheStartOfTheFile )
{
    const QByteArray book = Book();
    std::array<int, 2> ends = { -1, -1 };
    ASSERT_EQ( pipe( ends.data() ), 0 );
    std::thread writer(
        [&book, &ends]
        {
            for ( int place = 0; place < book.size(); place += 777 )
            {
                const QByteArray piece = book.mid( place, 777 );
                EXPECT_EQ( write( ends[1], piece.constData(), static_cast<size_t>( piece.size() ) ), piece.size() );
            }
            close( ends[1] );
        } );
    InputDevice source( "/proc/self/fd/" + QByteArray::number( ends[0] ) );
    ReplayedDevice device( source );
    EXPECT_TRUE( device.HoldBack( 500000 ) == book.left( 500000 ) );
    EXPECT_TRUE( Rest( device ) == book );
    EXPECT_TRUE( device.atEnd() );
    EXPECT_EQ( source.Error(), 0 );
    writer.join();
    close( ends[0] );
}

TEST( ReplayedDeviceTest, ReaderReachesTheEndOfFilesAndSockets )
{
    const QByteArray book = Book();
    for ( const int held : { 0, 1000, 2000000 } )
    {
        QBuffer file;
        file.setData( book );
        file.open( QIODevice::ReadOnly );
        ReplayedDevice replayedFile( file );
        replayedFile.HoldBack( held );
        EXPECT_EQ( CardsOf( replayedFile ), 20000 ) << held;
        Checks::TrickleDevice socket( book, 1, 100000 );
        socket.open( QIODevice::ReadOnly );
        ReplayedDevice replayedSocket( socket );
        EXPECT_TRUE( replayedSocket.HoldBack( held ) == book.left( held ) ) << held;
        while ( socket.Arrive() )
        {
        }
        EXPECT_EQ( CardsOf( replayedSocket ), 20000 ) << held;
    }
}

TEST( ReplayedDeviceTest, FailureOfTheSourceIsItsOwn )
{
    InputDevice source( "/proc/self/mem" );
    ASSERT_EQ( source.Error(), 0 );
    ReplayedDevice device( source );
    EXPECT_TRUE( device.HoldBack( 10 ).isEmpty() );
    EXPECT_EQ( device.read( nullptr, 0 ), 0 );
    std::array<char, 10> room{};
    EXPECT_EQ( device.read( room.data(), room.size() ), -1 );
    EXPECT_NE( source.Error(), 0 );
    EXPECT_EQ( device.errorString(), source.errorString() );
}

TEST( ReplayedDeviceTest, NothingCanBeWritten )
{
    QBuffer source;
    source.open( QIODevice::ReadWrite );
    ReplayedDevice device( source );
    EXPECT_FALSE( device.isWritable() );
}
