#include "ProgramRun.h"

#include "TestBooks.h"

#include <QFile>

#include <algorithm>
#include <sys/resource.h>

using namespace PimManager::Tools;

namespace
{

// What a child of this test has used at most so far, in kilobytes. A child counts what its parent had when it was
// started, so the test itself holds no book.
long MostUsed()
{
    rusage usage = {};
    EXPECT_EQ( getrusage( RUSAGE_CHILDREN, &usage ), 0 );
    return usage.ru_maxrss;
}

// That a large file needs no more than a small one, and both less than 64 MB; in kilobytes.
constexpr long s_kAllowed = 1024;
constexpr long s_kLimit = 64L * 1024;

QByteArray WriteBook( const Folder& a_folder, const QByteArray& a_name, int a_cards )
{
    QByteArray path = a_folder.Write( a_name, "" );
    QFile file( QFile::decodeName( path ) );
    EXPECT_TRUE( file.open( QIODevice::WriteOnly ) );
    // Each version but 3.0 renames one of the properties, which is reported.
    const QByteArray card =
        CardText( "VERSION:3.0\r\nFN:Nell\r\nCLASS:a\r\nCATEGORIES:a\r\nNOTE:" + QByteArray( 500, 'x' ) + "\\n\r\n" +
                  PhotoLine( PngPicture() ) + "no property\r\n" );
    for ( int i = 0; i < a_cards; ++i )
        file.write( card );
    return path;
}

} // namespace

TEST( ReadingMemoryTest, MemoryDoesNotGrowWithTheFile )
{
    const Folder folder;
    const QByteArray small = WriteBook( folder, "small", 1000 );
    const QByteArray large = WriteBook( folder, "large", 5000 );
    const QByteArray rejects = folder.Path( "rejects" );
    for ( const QList<QByteArray>& mode :
          { QList<QByteArray>{ "list" }, QList<QByteArray>{ "show" },
            QList<QByteArray>{ "convert", "--to", "json-lines" }, QList<QByteArray>{ "convert", "--to", "3.0" },
            QList<QByteArray>{ "convert", "--to", "2.1" }, QList<QByteArray>{ "convert", "--to", "4.0" },
            QList<QByteArray>{ "convert", "--to", "jcard" }, QList<QByteArray>{ "convert", "--to", "csv" },
            QList<QByteArray>{ "convert", "--to", "json" },
            QList<QByteArray>{ "convert", "--force", "-t", "html", "-o", "/dev/null", "--rejects", rejects },
            QList<QByteArray>{ "check" } } )
    {
        EXPECT_EQ( ProgramCall( mode + QList<QByteArray>{ small } ).WithOutputTo( "/dev/null" ).Run().m_status, 1 );
        const long before = MostUsed();
        EXPECT_EQ( ProgramCall( mode + QList<QByteArray>{ large } ).WithOutputTo( "/dev/null" ).Run().m_status, 1 );
        EXPECT_LE( MostUsed(), std::min( before + s_kAllowed, s_kLimit ) ) << mode.join( ' ' ).constData();
    }
}

TEST( ReadingMemoryTest, MemoryDoesNotGrowWithTheJCard )
{
    const Folder folder;
    const auto writeJson = [&folder]( const QByteArray& a_name, int a_cards )
    {
        QByteArray json = folder.Path( a_name + ".jcard" );
        const QByteArray book = WriteBook( folder, a_name, a_cards );
        EXPECT_EQ( RunPimvcard( { "convert", "-q", "-o", json, book } ).m_status, 1 );
        return json;
    };
    const QByteArray small = writeJson( "small", 1000 );
    const QByteArray large = writeJson( "large", 5000 );
    for ( const char* const format : { "3.0", "jcard", "json-lines" } )
    {
        const QList<QByteArray> mode = { "convert", "--to", format };
        EXPECT_EQ( ProgramCall( mode + QList<QByteArray>{ small } ).WithOutputTo( "/dev/null" ).Run().m_status, 0 );
        const long before = MostUsed();
        EXPECT_EQ( ProgramCall( mode + QList<QByteArray>{ large } ).WithOutputTo( "/dev/null" ).Run().m_status, 0 );
        EXPECT_LE( MostUsed(), std::min( before + s_kAllowed, s_kLimit ) ) << format;
    }
}
