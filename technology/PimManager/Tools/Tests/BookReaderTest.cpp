#include "BookReader.h"

#include "ToolsTestText.h"

#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <unistd.h>
#include <vector>

using namespace PimManager::vCard::Tools;

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

} // namespace

TEST( BookReaderTest, FileIsReadByteForByte )
{
    const QTemporaryDir folder;
    const QByteArray bytes = QByteArray( "\0\xFF\r\n\n", 5 ).repeated( 200000 );
    const Book book = ReadBook( WriteFile( folder, bytes ) );
    EXPECT_TRUE( book.m_refusal.isEmpty() ) << Utf8( book.m_refusal );
    EXPECT_TRUE( book.m_bytes == bytes );
}

TEST( BookReaderTest, EmptyFileIsRead )
{
    const QTemporaryDir folder;
    const Book book = ReadBook( WriteFile( folder, QByteArray() ) );
    EXPECT_TRUE( book.m_refusal.isEmpty() );
    EXPECT_TRUE( book.m_bytes.isEmpty() );
}

TEST( BookReaderTest, PipeIsReadToItsEnd )
{
    const FilledPipe pipe( "BEGIN:VCARD\r\n" );
    const Book book = ReadBook( pipe.Name() );
    EXPECT_TRUE( book.m_refusal.isEmpty() ) << Utf8( book.m_refusal );
    EXPECT_EQ( book.m_bytes.toStdString(), "BEGIN:VCARD\r\n" );
}

TEST( BookReaderTest, WhatCannotBeReadIsRefusedWithTheReason )
{
    const QTemporaryDir folder;
    const QByteArray folderName = QFile::encodeName( folder.path() );
    const QByteArray file = WriteFile( folder, "x" );
    const QByteArray loop = folderName + "/loop";
    ASSERT_EQ( symlink( "loop", loop.constData() ), 0 );
    struct Row
    {
        QByteArray m_name;
        const char* m_reason;
    };
    const std::vector<Row> rows = {
        { folderName, "is a folder" },
        { folderName + "/missing.vcf", "No such file or directory" },
        { QByteArray(), "No such file or directory" },
        { file + "/x", "Not a directory" },
        { folderName + "/" + QByteArray( 5000, 'x' ), "File name too long" },
        { loop, "Too many levels of symbolic links" },
        { "/proc/self/mem", "Input/output error" },
    };
    for ( const Row& row : rows )
    {
        const Book book = ReadBook( row.m_name );
        EXPECT_EQ( Utf8( book.m_refusal ), row.m_reason ) << row.m_name.constData();
        EXPECT_TRUE( book.m_bytes.isEmpty() );
    }
}

TEST( BookReaderTest, InputOverTheLimitIsRefused )
{
    const QTemporaryDir folder;
    const QByteArray file = WriteFile( folder, "123456" );
    const char* const reason = "is too large: more than 5 bytes cannot be read at once";
    EXPECT_EQ( Utf8( ReadBook( file, 5 ).m_refusal ), reason );
    EXPECT_EQ( Utf8( ReadBook( FilledPipe( "123456" ).Name(), 5 ).m_refusal ), reason );
    EXPECT_EQ( ReadBook( file, 6 ).m_bytes.toStdString(), "123456" );
    EXPECT_EQ( ReadBook( FilledPipe( "123456" ).Name(), 6 ).m_bytes.toStdString(), "123456" );
}

TEST( BookReaderTest, FileOverTheLargestBookIsRefusedUnread )
{
    const QTemporaryDir folder;
    const QByteArray file = WriteFile( folder, QByteArray() );
    ASSERT_EQ( truncate( file.constData(), s_kLargestBook + 1 ), 0 );
    const char* const reason = sizeof( void* ) < 8 ? "is too large: more than 100000000 bytes cannot be read at once"
                                                   : "is too large: more than 700000000 bytes cannot be read at once";
    EXPECT_EQ( Utf8( ReadBook( file ).m_refusal ), reason );
}
