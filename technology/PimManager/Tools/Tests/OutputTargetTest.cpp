#include "Outputs/OutputTarget.h"

#include "ProgramRun.h"
#include "ToolsTestText.h"

#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace PimManager::Tools;

namespace
{

using Kind = OutputTarget::Kind;

// A folder with a link, a file and more.
class Names : public Folder
{
public:
    Names()
    {
        Write( "file", "x" );
        EXPECT_EQ( mkdir( Path( "sub" ).constData(), 0700 ), 0 );
        EXPECT_EQ( mkfifo( Path( "pipe" ).constData(), 0600 ), 0 );
        EXPECT_EQ( link( Path( "file" ).constData(), Path( "same" ).constData() ), 0 );
        Link( "file", "to-file" );
        Link( "to-file", "to-link" );
        Link( "sub/new", "to-nothing" );
        Link( "to-itself", "to-itself" );
        Link( "pipe", "to-pipe" );
        Link( "/dev/stdout", "to-output" );
        Link( "sub", "to-folder" );
    }
    Q_DISABLE_COPY( Names )

private:
    void Link( const char* a_target, const char* a_name ) const
    {
        EXPECT_EQ( symlink( a_target, Path( a_name ).constData() ), 0 ) << a_name;
    }
};

bool HaveOneInCommon( const OutputTarget& a_first, const OutputTarget& a_second )
{
    std::set<FileIdentity> all( a_first.Identities().begin(), a_first.Identities().end() );
    return std::any_of( a_second.Identities().begin(), a_second.Identities().end(),
                        [&all]( const FileIdentity& a_identity ) { return all.count( a_identity ) > 0; } );
}

} // namespace

TEST( OutputTargetTest, NameSaysWhereAnOutputGoes )
{
    const Names names;
    struct Row
    {
        QByteArray m_name;
        Kind m_kind;
        const char* m_file;
    };
    const std::vector<Row> rows = {
        { "-", Kind::StandardOutput, "" },
        { "/dev/stdout", Kind::StandardOutput, "" },
        { "/dev/fd/1", Kind::StandardOutput, "" },
        { "/proc/self/fd/1", Kind::StandardOutput, "" },
        { names.Path( "to-output" ), Kind::StandardOutput, "" },
        { "/dev/stderr", Kind::Descriptor, "" },
        { "/dev/null", Kind::Stream, "" },
        { names.Path( "pipe" ), Kind::Stream, "" },
        { names.Path( "to-pipe" ), Kind::Stream, "" },
        { names.Path( "file" ), Kind::File, "file" },
        { names.Path( "to-link" ), Kind::File, "file" },
        { names.Path( "new" ), Kind::File, "new" },
        { names.Path( "1" ), Kind::File, "1" },
        { names.Path( "to-nothing" ), Kind::File, "new" },
        { "new", Kind::File, "new" },
        { "./-", Kind::File, "-" },
    };
    for ( const Row& row : rows )
    {
        const OutputTarget target( row.m_name );
        EXPECT_EQ( int( target.GetKind() ), int( row.m_kind ) ) << row.m_name.constData();
        EXPECT_EQ( Utf8( target.Reason() ), "" ) << row.m_name.constData();
        EXPECT_EQ( row.m_kind == Kind::File ? target.Name().toStdString() : "", row.m_file ) << row.m_name.constData();
    }
}

TEST( OutputTargetTest, UnusableNameHasAReason )
{
    const Names names;
    struct Row
    {
        QByteArray m_name;
        const char* m_reason;
    };
    const std::vector<Row> rows = {
        { "", "No such file or directory" },
        { names.Path( "" ), "it is a folder; name a file in it" },
        { names.Path( "sub" ), "it is a folder; name a file in it" },
        { names.Path( "to-folder" ), "it is a folder; name a file in it" },
        { ".", "it is a folder; name a file in it" },
        { names.Path( "missing/" ), "No such file or directory" },
        { names.Path( "missing/file" ), "No such file or directory" },
        { names.Path( "file/x" ), "Not a directory" },
        { names.Path( "to-itself" ), "Too many levels of symbolic links" },
        { names.Path( QByteArray( 300, 'x' ) ), "File name too long" },
    };
    for ( const Row& row : rows )
    {
        const OutputTarget target( row.m_name );
        EXPECT_EQ( int( target.GetKind() ), int( Kind::Unusable ) ) << row.m_name.constData();
        EXPECT_EQ( Utf8( target.Reason() ), row.m_reason ) << row.m_name.constData();
    }
}

TEST( OutputTargetTest, NamesOfOneFileAreTheSame )
{
    const Names names;
    struct Row
    {
        QByteArray m_first;
        QByteArray m_second;
        bool m_isSame;
    };
    const std::vector<Row> rows = {
        { names.Path( "file" ), names.Path( "file" ), true },
        { names.Path( "file" ), names.Path( "same" ), true },
        { names.Path( "file" ), names.Path( "to-link" ), true },
        { names.Path( "file" ), names.Path( "new" ), false },
        { names.Path( "new" ), names.Path( "sub/../new" ), true },
        { names.Path( "new" ), names.Path( "other" ), false },
        { names.Path( "new" ), names.Path( "sub/new" ), false },
        { names.Path( "to-nothing" ), names.Path( "to-folder/new" ), true },
        { names.Path( "pipe" ), names.Path( "to-pipe" ), true },
        { "-", "/dev/stdout", true },
        { "-", names.Path( "to-output" ), true },
        { "-", names.Path( "file" ), false },
        { "/dev/null", "/dev/null", false },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( HaveOneInCommon( OutputTarget( row.m_first ), OutputTarget( row.m_second ) ), row.m_isSame )
            << row.m_first.constData() << " " << row.m_second.constData();
}
