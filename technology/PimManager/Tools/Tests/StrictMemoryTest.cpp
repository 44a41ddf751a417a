#include "ProgramRun.h"

#include "ToolsTestText.h"

#include <sys/resource.h>
#include <unistd.h>

using namespace PimManager::Tools;

namespace
{

// Gives less memory to this process and to those that it starts.
class ScarceMemory
{
public:
    explicit ScarceMemory( rlim_t a_bytes )
    {
        EXPECT_EQ( getrlimit( RLIMIT_AS, &m_former ), 0 );
        const rlimit scarce = { a_bytes, m_former.rlim_max };
        EXPECT_EQ( setrlimit( RLIMIT_AS, &scarce ), 0 );
    }
    ~ScarceMemory() { setrlimit( RLIMIT_AS, &m_former ); }
    Q_DISABLE_COPY( ScarceMemory )

private:
    rlimit m_former = {};
};

} // namespace

TEST( StrictMemoryTest, FileThatNeedsTooMuchMemoryIsReportedAndOthersAreRead )
{
    const Folder folder;
    const QByteArray huge = folder.Write( "huge", "" );
    ASSERT_EQ( truncate( huge.constData(), 90000000 ), 0 );
    const QByteArray book = folder.Write( "book", CardText( "FN:x\r\n" ) );
    const ScarceMemory scarce( 150000000 );
    const ProgramRun run = RunPimvcard( { "check", "--strict", huge, book } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: " + huge.toStdString() + ": there is not enough memory\n" );
    EXPECT_NE( run.m_out.find( "/book: the strict reader returns 1 card\n" ), std::string::npos ) << run.m_out;
}
