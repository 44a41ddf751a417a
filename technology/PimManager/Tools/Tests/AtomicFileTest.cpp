#include "Outputs/AtomicFile.h"

#include "Outputs/FileDescriptor.h"
#include "ProgramRun.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace PimManager::Tools;

namespace
{

// A folder for the files of a test, opened.
class OpenFolder
{
public:
    OpenFolder() :
        m_descriptor( open( m_folder.Path( "" ).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC ) )
    {
    }
    Q_DISABLE_COPY( OpenFolder )

    int Descriptor() const { return m_descriptor.Number(); }
    const Folder& Files() const { return m_folder; }
    QByteArray Content( const QByteArray& a_name ) const { return FileContent( m_folder.Path( a_name ) ); }

private:
    const Folder m_folder;
    const FileDescriptor m_descriptor;
};

int Publish( const OpenFolder& a_folder, const QByteArray& a_name, Existing a_existing )
{
    AtomicFile file( a_folder.Descriptor() );
    file.Device().write( "new" );
    return file.Publish( a_name, a_existing );
}

} // namespace

TEST( AtomicFileTest, NameAppearsWithTheWholeFile )
{
    const OpenFolder folder;
    {
        AtomicFile file( folder.Descriptor() );
        ASSERT_EQ( file.Error(), 0 );
        file.Device().write( QByteArray( 100000, 'x' ) );
        ASSERT_EQ( NamesIn( folder.Files().Path( "" ) ).find( ".pimvcard-" ), 0U );
        EXPECT_EQ( file.Publish( "a", Existing::Keep ), 0 );
        EXPECT_EQ( NamesIn( folder.Files().Path( "" ) ), "a\n" );
        EXPECT_EQ( folder.Content( "a" ), QByteArray( 100000, 'x' ) );
    }
    EXPECT_EQ( NamesIn( folder.Files().Path( "" ) ), "a\n" );
}

TEST( AtomicFileTest, NothingIsLeftOfAFileThatIsNotPublished )
{
    const OpenFolder folder;
    {
        AtomicFile first( folder.Descriptor() );
        AtomicFile second( folder.Descriptor() );
        AtomicFile third( folder.Descriptor() );
        second.Device().write( "x" );
        EXPECT_EQ( second.Publish( "b", Existing::Keep ), 0 );
    }
    EXPECT_EQ( NamesIn( folder.Files().Path( "" ) ), "b\n" );
}

TEST( AtomicFileTest, TakenNameIsKeptAndAnotherCanBeTried )
{
    const OpenFolder folder;
    folder.Files().Write( "a", "old" );
    ASSERT_EQ( symlink( "nowhere", folder.Files().Path( "link" ).constData() ), 0 );
    ASSERT_EQ( mkdir( folder.Files().Path( "sub" ).constData(), 0700 ), 0 );
    AtomicFile file( folder.Descriptor() );
    file.Device().write( "new" );
    for ( const char* taken : { "a", "link", "sub" } )
        EXPECT_EQ( file.Publish( taken, Existing::Keep ), EEXIST ) << taken;
    EXPECT_EQ( file.Publish( "sub", Existing::Replace ), EISDIR );
    EXPECT_EQ( file.Publish( "b", Existing::Keep ), 0 );
    EXPECT_EQ( folder.Content( "a" ).toStdString(), "old" );
    EXPECT_EQ( folder.Content( "b" ).toStdString(), "new" );
    EXPECT_EQ( NamesIn( folder.Files().Path( "" ) ), "a\nb\nlink\nsub\n" );
}

TEST( AtomicFileTest, ReplacedFilePassesOnItsPermissions )
{
    for ( const mode_t mode : { 0600U, 0644U, 0666U, 0440U, 0777U } )
    {
        const OpenFolder folder;
        const QByteArray path = folder.Files().Write( "a", "old" );
        ASSERT_EQ( chmod( path.constData(), mode ), 0 );
        EXPECT_EQ( Publish( folder, "a", Existing::Replace ), 0 ) << std::oct << mode;
        EXPECT_EQ( ModeOf( path ), mode ) << std::oct << mode;
        EXPECT_EQ( folder.Content( "a" ).toStdString(), "new" ) << std::oct << mode;
    }
}

TEST( AtomicFileTest, ReplacedFilePassesOnItsOwner )
{
    constexpr uid_t s_kSomebody = 4321;
    const OpenFolder folder;
    const QByteArray path = folder.Files().Write( "a", "old" );
    // Only the superuser can give files away.
    const uid_t owner = geteuid() == 0 ? s_kSomebody : geteuid();
    ASSERT_EQ( chown( path.constData(), owner, owner == s_kSomebody ? owner : getegid() ), 0 );
    struct stat before = {};
    ASSERT_EQ( stat( path.constData(), &before ), 0 );
    EXPECT_EQ( Publish( folder, "a", Existing::Replace ), 0 );
    struct stat after = {};
    ASSERT_EQ( stat( path.constData(), &after ), 0 );
    EXPECT_NE( after.st_ino, before.st_ino );
    EXPECT_EQ( after.st_uid, before.st_uid );
    EXPECT_EQ( after.st_gid, before.st_gid );
}

TEST( AtomicFileTest, NewFileIsForItsOwnerAlone )
{
    const OpenFolder folder;
    const mode_t former = umask( 0 );
    EXPECT_EQ( Publish( folder, "a", Existing::Keep ), 0 );
    EXPECT_EQ( Publish( folder, "b", Existing::Replace ), 0 );
    umask( former );
    EXPECT_EQ( ModeOf( folder.Files().Path( "a" ) ), 0600U );
    EXPECT_EQ( ModeOf( folder.Files().Path( "b" ) ), 0600U );
}

TEST( AtomicFileTest, LinkIsReplacedAndItsTargetKept )
{
    const OpenFolder folder;
    const QByteArray target = folder.Files().Write( "target", "old" );
    ASSERT_EQ( chmod( target.constData(), 0666 ), 0 );
    ASSERT_EQ( symlink( "target", folder.Files().Path( "link" ).constData() ), 0 );
    EXPECT_EQ( Publish( folder, "link", Existing::Replace ), 0 );
    EXPECT_EQ( folder.Content( "target" ).toStdString(), "old" );
    EXPECT_EQ( folder.Content( "link" ).toStdString(), "new" );
    EXPECT_EQ( ModeOf( folder.Files().Path( "link" ) ), 0600U );
}

TEST( AtomicFileTest, FolderThatIsNotOpenIsAFailure )
{
    AtomicFile file( -1 );
    EXPECT_EQ( file.Error(), EBADF );
    file.Device().write( "x" );
    EXPECT_EQ( file.Publish( "a", Existing::Replace ), EBADF );
}
