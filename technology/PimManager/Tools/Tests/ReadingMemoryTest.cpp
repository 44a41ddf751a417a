#include "ProgramRun.h"

#include "TestBooks.h"

#include <QFile>

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

QByteArray WriteBook( const Folder& a_folder, const QByteArray& a_name, int a_cards )
{
    QByteArray path = a_folder.Write( a_name, "" );
    QFile file( QFile::decodeName( path ) );
    EXPECT_TRUE( file.open( QIODevice::WriteOnly ) );
    const QByteArray card = CardText( "VERSION:3.0\r\nFN:Nell\r\nNOTE:" + QByteArray( 500, 'x' ) + "\\n\r\n" +
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
            QList<QByteArray>{ "convert", "--to", "json-lines" },
            QList<QByteArray>{ "convert", "--force", "-t", "html", "-o", "/dev/null", "--rejects", rejects },
            QList<QByteArray>{ "check" } } )
    {
        constexpr long s_kAllowed = 1024;
        EXPECT_EQ( ProgramCall( mode + QList<QByteArray>{ small } ).WithOutputTo( "/dev/null" ).Run().m_status, 1 );
        const long before = MostUsed();
        EXPECT_EQ( ProgramCall( mode + QList<QByteArray>{ large } ).WithOutputTo( "/dev/null" ).Run().m_status, 1 );
        EXPECT_LE( MostUsed(), before + s_kAllowed ) << mode.join( ' ' ).constData();
    }
}
