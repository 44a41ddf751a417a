#include "ProgramRun.h"

#include "TestBooks.h"

#include <QDir>

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace PimManager::Tools;

namespace
{

QByteArray Card( const QByteArray& a_name, const QByteArray& a_lines )
{
    return CardText( "VERSION:3.0\r\nFN:" + a_name + "\r\n" + a_lines );
}

ProgramRun Convert( const QByteArray& a_book, const QByteArray& a_folder )
{
    return ProgramCall( { "convert", "--photos", a_folder, "-" } ).WithInput( a_book ).Run();
}

// The names in a folder and everything below it, in order.
std::string FilesIn( const QByteArray& a_folder )
{
    std::vector<std::string> names;
    for ( const auto& entry : std::filesystem::recursive_directory_iterator( a_folder.toStdString() ) )
        names.push_back( std::filesystem::relative( entry.path(), a_folder.toStdString() ).string() );
    std::sort( names.begin(), names.end() );
    std::string joined;
    for ( const std::string& name : names )
        joined += name + "\n";
    return joined;
}

} // namespace

TEST( ConvertPhotosTest, PicturesGetTheNameOfTheirContactAndTheTypeOfTheirBytes )
{
    const Folder folder;
    const QByteArray photos = folder.Path( "photos" );
    const QByteArray book =
        Card( "Nell Brackwater", PhotoLine( PngPicture() ) + PhotoLine( GifPicture(), "LOGO;ENCODING=b" ) ) +
        Card( "月見里", PhotoLine( GifPicture(), "PHOTO;TYPE=../../x;ENCODING=b" ) ) +
        CardText( "VERSION:3.0\r\n" + PhotoLine( "no picture" ) ) + CleanCard();
    const ProgramRun run = Convert( book, photos );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err;
    EXPECT_EQ( FilesIn( photos ), "Nell-Brackwater-1.png\nNell-Brackwater-2.gif\ncontact-4.bin\n月見里-3.gif\n" );
    EXPECT_EQ( FileContent( photos + "/Nell-Brackwater-1.png" ), PngPicture() );
    EXPECT_EQ( FileContent( photos + "/Nell-Brackwater-2.gif" ), GifPicture() );
    EXPECT_NE( run.LastMessage().find( ", 4 pictures written, " ), std::string::npos ) << run.m_err;
}

TEST( ConvertPhotosTest, NoFileLeavesTheFolderWhateverTheName )
{
    const Folder folder;
    const QByteArray photos = folder.Path( "a" ) + "/b";
    ASSERT_EQ( mkdir( folder.Path( "a" ).constData(), 0700 ), 0 );
    QByteArray book;
    for ( const char* name : { "../../x", "/etc/x", "..", ".", "~root", "a/b", "%2e%2e%2fx", "..\\x", "CON", "-rf" } )
        book += Card( name, PhotoLine( PngPicture() ) );
    book +=
        Card( HostileText(), PhotoLine( PngPicture() ) ) + Card( QByteArray( 100000, 'x' ), PhotoLine( PngPicture() ) );
    EXPECT_EQ( Convert( book, photos ).m_status, 0 );
    EXPECT_EQ(
        QDir( QFile::decodeName( photos ) ).entryList( QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden ).size(),
        12 );
    EXPECT_EQ( FilesIn( folder.Path( "a" ) ).find( '\n' ), 1U ) << "the folder of the pictures comes first";
    EXPECT_EQ( QByteArray::fromStdString( FilesIn( folder.Path( "" ) ) ).count( '\n' ), 14 );
    EXPECT_TRUE( IsHarmless( FilesIn( photos ) ) );
}

TEST( ConvertPhotosTest, NothingIsOverwrittenAndNoLinkFollowed )
{
    const Folder folder;
    const QByteArray photos = folder.Path( "photos" );
    ASSERT_EQ( mkdir( photos.constData(), 0700 ), 0 );
    folder.Write( "photos/Nell-1.png", "mine" );
    ASSERT_EQ( symlink( "../stolen", ( photos + "/Nell-2.png" ).constData() ), 0 );
    const ProgramRun run = Convert( Card( "Nell", PhotoLine( PngPicture() ) ), photos );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err;
    EXPECT_EQ( FileContent( photos + "/Nell-1.png" ).toStdString(), "mine" );
    EXPECT_EQ( FileContent( photos + "/Nell-3.png" ), PngPicture() );
    EXPECT_NE( access( folder.Path( "stolen" ).constData(), F_OK ), 0 );
    EXPECT_EQ( Convert( Card( "Nell", PhotoLine( PngPicture() ) ), photos ).m_status, 0 );
    EXPECT_EQ( FilesIn( photos ), "Nell-1.png\nNell-2.png\nNell-3.png\nNell-4.png\n" );
}

TEST( ConvertPhotosTest, ForceReplacesFilesAndLinksButNoFoldersAndNoFilesInUse )
{
    const Folder folder;
    const QByteArray photos = folder.Path( "photos" );
    ASSERT_EQ( mkdir( photos.constData(), 0700 ), 0 );
    folder.Write( "photos/Nell-1.png", "old" );
    const QByteArray target = folder.Write( "target", "mine" );
    ASSERT_EQ( symlink( "../target", ( photos + "/Nell-2.png" ).constData() ), 0 );
    ASSERT_EQ( mkdir( ( photos + "/Nell-3.png" ).constData(), 0700 ), 0 );
    const QByteArray book = folder.Write(
        "photos/Nell-4.png", CardText( "VERSION:3.0\r\nFN:Nell\r\n" + PhotoLine( PngPicture() ).repeated( 4 ) ) );
    const ProgramRun run =
        RunPimvcard( { "convert", "--force", "--photos", photos, "--rejects", photos + "/Nell-5.png", book } );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err;
    EXPECT_EQ( NamesIn( photos ),
               "Nell-1.png\nNell-2.png\nNell-3.png\nNell-4.png\nNell-5.png\nNell-6.png\nNell-7.png\n" );
    for ( const char* name : { "/Nell-1.png", "/Nell-2.png", "/Nell-6.png", "/Nell-7.png" } )
        EXPECT_EQ( FileContent( photos + name ), PngPicture() ) << name;
    EXPECT_TRUE( FileContent( book ).startsWith( "BEGIN" ) );
    EXPECT_EQ( FileContent( photos + "/Nell-5.png" ).toStdString(), "" );
    EXPECT_EQ( FileContent( target ).toStdString(), "mine" );
}

TEST( ConvertPhotosTest, FolderAndPicturesAreForTheirOwnerAlone )
{
    const Folder folder;
    const QByteArray photos = folder.Path( "photos" );
    const QByteArray book = Card( "Nell", PhotoLine( PngPicture() ) );
    EXPECT_EQ( ProgramCall( { "convert", "--photos", photos, "-" } ).WithInput( book ).WithUmask( 0 ).Run().m_status,
               0 );
    EXPECT_EQ( ModeOf( photos ), 0700U );
    EXPECT_EQ( ModeOf( photos + "/Nell-1.png" ), 0600U );
}

TEST( ConvertPhotosTest, FullDiskLeavesWholePicturesOnly )
{
    const Folder folder;
    const QByteArray photos = folder.Path( "photos" );
    const QByteArray book =
        Card( "Nell", PhotoLine( PngPicture() ) + PhotoLine( PngPicture() + QByteArray( 100000, 'x' ) ) );
    const ProgramRun run =
        ProgramCall( { "convert", "--photos", photos, "-" } ).WithInput( book ).WithFileSizeLimit( 50000 ).Run();
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err.find( "pimvcard: " + photos.toStdString() + ": pictures cannot be written: File too large\n" ),
               0U )
        << run.m_err;
    EXPECT_EQ( NamesIn( photos ), "Nell-1.png\n" );
}

TEST( ConvertPhotosTest, PicturesElsewhereAreCountedAndNotFetched )
{
    const Folder folder;
    const QByteArray book = Card( "Nell", "PHOTO;VALUE=uri:http://photos.example.com/nell.jpg\r\n" );
    const ProgramRun run = Convert( book, folder.Path( "photos" ) );
    EXPECT_NE( run.LastMessage().find( ", 0 pictures written (1 picture only linked to, not fetched), " ),
               std::string::npos )
        << run.m_err;
    EXPECT_EQ( FilesIn( folder.Path( "photos" ) ), "" );
}

TEST( ConvertPhotosTest, FolderThatCannotBeUsedEndsTheRun )
{
    const Folder folder;
    const QByteArray file = folder.Write( "file", "x" );
    struct Row
    {
        QByteArray m_folder;
        const char* m_reason;
    };
    const std::vector<Row> rows = {
        { file, "Not a directory" },
        { file + "/x", "Not a directory" },
        { folder.Path( "a/b" ), "No such file or directory" },
        { "/proc/nothing", "No such file or directory" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = Convert( CleanCard(), row.m_folder );
        EXPECT_EQ( run.m_status, 2 ) << row.m_folder.constData();
        EXPECT_EQ( run.m_out, "" );
        EXPECT_EQ( run.m_err.find( "pimvcard: " + row.m_folder.toStdString() +
                                   ": pictures cannot be written: " + row.m_reason + "\n" ),
                   0U )
            << run.m_err;
    }
}

TEST( ConvertPhotosTest, UnreadablePicturesAreCountedAndNotWritten )
{
    const Folder folder;
    const QByteArray damaged = PhotoLine( PngPicture() ).replace( "\r\n", "%\r\n" );
    const QByteArray book =
        Card( "Nell", damaged + "PHOTO:nonsense\r\nPHOTO:\r\nPHOTO;ENCODING=b:\r\n" + PhotoLine( PngPicture() ) );
    const ProgramRun run = Convert( book, folder.Path( "photos" ) );
    EXPECT_NE( run.LastMessage().find( ", 1 picture written (2 pictures unreadable), " ), std::string::npos )
        << run.m_err;
    EXPECT_EQ( FilesIn( folder.Path( "photos" ) ), "Nell-1.png\n" );
}

TEST( ConvertPhotosTest, PicturesOfNestedCardsGetTheNamesOfTheseCards )
{
    const Folder folder;
    const QByteArray nested =
        CardText( "VERSION:2.1\r\nN:Agent;Smith\r\n" + PhotoLine( GifPicture(), "PHOTO;BASE64" ) );
    const QByteArray book =
        CardText( "VERSION:2.1\r\nN:Brackwater;Nell\r\n" + PhotoLine( PngPicture(), "PHOTO;BASE64" ) +
                  "\r\nAGENT:\r\n" + nested + PhotoLine( PngPicture(), "LOGO;BASE64" ) + "\r\n" );
    const ProgramRun run = Convert( book, folder.Path( "photos" ) );
    EXPECT_EQ( FilesIn( folder.Path( "photos" ) ), "Nell-Brackwater-1.png\nNell-Brackwater-3.png\nSmith-Agent-2.gif\n" )
        << run.m_err;
}
