#include "Loader/DevicePieces.h"

#include "TestDevices.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryFile>

#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

struct Outcome
{
    QByteArray m_bytes;
    PieceState m_state = PieceState::Data;
    QString m_errorText;
};

// A silent device fails at once.
Outcome ReadAll( QIODevice& a_device )
{
    DevicePieces pieces( a_device, -1 );
    Outcome outcome;
    while ( outcome.m_state == PieceState::Data || outcome.m_state == PieceState::Waiting )
    {
        outcome.m_state = pieces.Next();
        outcome.m_bytes += pieces.Piece();
    }
    outcome.m_errorText = pieces.ErrorText();
    return outcome;
}

struct Row
{
    const char* m_name;
    TestEnd m_end;
    bool m_isSequential;
    PieceState m_state;
    const char* m_errorText;
};

} // namespace

TEST( DevicePiecesTest, DeviceEndsOrFails )
{
    const std::vector<Row> rows = {
        { "connection that finishes", TestEnd::Finishes, true, PieceState::End, "" },
        { "connection that closes", TestEnd::Closes, true, PieceState::End, "" },
        { "connection that fails", TestEnd::Fails, true, PieceState::Failed, "the stick was pulled out" },
        { "connection that breaks", TestEnd::Breaks, true, PieceState::Failed, "the stick was pulled out" },
        { "silent connection", TestEnd::IsSilent, true, PieceState::Failed, "the device sent no more data" },
        { "memory", TestEnd::IsSilent, false, PieceState::End, "" },
        { "memory that fails", TestEnd::Fails, false, PieceState::Failed, "the stick was pulled out" },
    };
    const QByteArray bytes( 200000, 'x' );
    for ( const Row& row : rows )
    {
        SCOPED_TRACE( row.m_name );
        TestDevice device( bytes, row.m_end, row.m_isSequential );
        const Outcome outcome = ReadAll( device );
        EXPECT_EQ( outcome.m_state, row.m_state );
        EXPECT_EQ( outcome.m_bytes, bytes );
        EXPECT_EQ( outcome.m_errorText.toStdString(), row.m_errorText );
    }
}

TEST( DevicePiecesTest, FileIsReadFromItsPosition )
{
    QTemporaryFile file;
    ASSERT_TRUE( file.open() );
    file.write( "0123456789" );
    file.seek( 4 );
    EXPECT_EQ( DevicePieces( file ).Size(), 6 );
    const Outcome outcome = ReadAll( file );
    EXPECT_EQ( outcome.m_bytes, "456789" );
    EXPECT_EQ( outcome.m_state, PieceState::End );
}

TEST( DevicePiecesTest, FileThatCannotBeReadFails )
{
    // No page of the process is at address 0, so the system reports an error.
    QFile file( QStringLiteral( "/proc/self/mem" ) );
    ASSERT_TRUE( file.open( QIODevice::ReadOnly | QIODevice::Unbuffered ) );
    const Outcome outcome = ReadAll( file );
    EXPECT_EQ( outcome.m_state, PieceState::Failed );
    EXPECT_FALSE( outcome.m_errorText.isEmpty() );
}

TEST( DevicePiecesTest, ConnectionThatIsClosedIsAtItsEndAndClosedFileFails )
{
    TestDevice device( "x", TestEnd::IsSilent );
    device.close();
    EXPECT_EQ( ReadAll( device ).m_state, PieceState::End );
    QFile file( QStringLiteral( "/proc/self/status" ) );
    EXPECT_EQ( ReadAll( file ).m_state, PieceState::Failed );
}

TEST( DevicePiecesTest, SizeOfConnectionIsUnknown )
{
    TestDevice device( "x", TestEnd::Finishes );
    EXPECT_EQ( DevicePieces( device ).Size(), -1 );
}

TEST( DevicePiecesTest, SilenceIsWaitedFor )
{
    TestDevice device( "x", TestEnd::IsSilent );
    DevicePieces pieces( device, 1000000 );
    EXPECT_EQ( pieces.Next(), PieceState::Data );
    EXPECT_EQ( pieces.Next(), PieceState::Waiting );
    EXPECT_TRUE( pieces.Piece().isEmpty() );
    EXPECT_EQ( pieces.Next(), PieceState::Waiting );
}

} // namespace PimManager::PhoneBook
