#include "Strict/BookReader.h"

#include "Reading/InputDevice.h"

#include "ToolsTestText.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cerrno>
#include <unistd.h>

using namespace PimManager::Tools;

namespace
{

// A pipe that holds some bytes and no more.
class FilledPipe
{
public:
    explicit FilledPipe( const QByteArray& a_bytes )
    {
        EXPECT_EQ( pipe( m_ends.data() ), 0 );
        EXPECT_EQ( write( m_ends[1], a_bytes.constData(), static_cast<size_t>( a_bytes.size() ) ), a_bytes.size() );
        close( m_ends[1] );
    }
    ~FilledPipe() { close( m_ends[0] ); }
    Q_DISABLE_COPY( FilledPipe )

    QByteArray Name() const { return "/proc/self/fd/" + QByteArray::number( m_ends[0] ); }

private:
    std::array<int, 2> m_ends = { -1, -1 };
};

QByteArray WriteFile( const QTemporaryDir& a_folder, const QByteArray& a_bytes )
{
    QFile file( a_folder.filePath( QStringLiteral( "book.vcf" ) ) );
    EXPECT_TRUE( file.open( QIODevice::WriteOnly ) );
    EXPECT_EQ( file.write( a_bytes ), a_bytes.size() );
    return QFile::encodeName( file.fileName() );
}

Book Read( const QByteArray& a_name, qint64 a_limit = s_kLargestBook )
{
    InputDevice input( a_name );
    EXPECT_EQ( input.Error(), 0 ) << a_name.constData();
    return ReadBook( input, a_limit );
}

} // namespace

TEST( BookReaderTest, FileIsReadByteForByte )
{
    const QTemporaryDir folder;
    const QByteArray bytes = QByteArray( "\0\xFF\r\n\n", 5 ).repeated( 200000 );
    const Book book = Read( WriteFile( folder, bytes ) );
    EXPECT_TRUE( book.m_refusal.isEmpty() ) << Utf8( book.m_refusal );
    EXPECT_TRUE( book.m_bytes == bytes );
}

TEST( BookReaderTest, EmptyFileIsRead )
{
    const QTemporaryDir folder;
    const Book book = Read( WriteFile( folder, QByteArray() ) );
    EXPECT_TRUE( book.m_refusal.isEmpty() );
    EXPECT_TRUE( book.m_bytes.isEmpty() );
}

TEST( BookReaderTest, PipeIsReadToItsEnd )
{
    const FilledPipe pipe( "BEGIN:VCARD\r\n" );
    const Book book = Read( pipe.Name() );
    EXPECT_TRUE( book.m_refusal.isEmpty() ) << Utf8( book.m_refusal );
    EXPECT_EQ( book.m_bytes.toStdString(), "BEGIN:VCARD\r\n" );
}

TEST( BookReaderTest, BytesBeforeAFailureAreThose )
{
    InputDevice input( "/proc/self/mem" );
    const Book book = ReadBook( input );
    EXPECT_TRUE( book.m_bytes.isEmpty() );
    EXPECT_TRUE( book.m_refusal.isEmpty() );
    EXPECT_EQ( input.Error(), EIO );
}

TEST( BookReaderTest, InputOverTheLimitIsRefused )
{
    const QTemporaryDir folder;
    const QByteArray file = WriteFile( folder, "123456" );
    const char* const reason = "is too large: more than 5 bytes cannot be read at once; leave out --strict";
    EXPECT_EQ( Utf8( Read( file, 5 ).m_refusal ), reason );
    EXPECT_EQ( Utf8( Read( FilledPipe( "123456" ).Name(), 5 ).m_refusal ), reason );
    EXPECT_EQ( Read( file, 6 ).m_bytes.toStdString(), "123456" );
    EXPECT_EQ( Read( FilledPipe( "123456" ).Name(), 6 ).m_bytes.toStdString(), "123456" );
}

TEST( BookReaderTest, FileOverTheLargestBookIsRefusedUnread )
{
    const QTemporaryDir folder;
    const QByteArray file = WriteFile( folder, QByteArray() );
    ASSERT_EQ( truncate( file.constData(), s_kLargestBook + 1 ), 0 );
    const char* const reason =
        sizeof( void* ) < 8 ? "is too large: more than 100000000 bytes cannot be read at once; leave out --strict"
                            : "is too large: more than 700000000 bytes cannot be read at once; leave out --strict";
    EXPECT_EQ( Utf8( Read( file ).m_refusal ), reason );
}
