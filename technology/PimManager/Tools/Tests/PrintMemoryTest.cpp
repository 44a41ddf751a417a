#include "ProgramRun.h"

#include "ToolsTestText.h"

#include <sys/resource.h>
#include <unistd.h>

using namespace PimManager::vCard::Tools;

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

TEST( PrintMemoryTest, FileThatDoesNotFitIsToldAndTheOthersArePrinted )
{
    const Folder folder;
    const QByteArray huge = folder.Write( "huge", "" );
    ASSERT_EQ( truncate( huge.constData(), 600000000 ), 0 );
    const QByteArray book = folder.Write( "book", CardText( "FN:x\r\n" ) );
    const ScarceMemory scarce( 400000000 );
    const ProgramRun run = RunPimvcard( { "print", huge, book } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err.find( "pimvcard: " + huge.toStdString() + ": needs more memory than there is\n" ), 0U )
        << run.m_err;
    EXPECT_EQ( run.m_out.substr( 0, 6 ), "1. x (" );
}
