#include "ProgramProcess.h"

#include "ProgramRun.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace PimManager::Tools
{

namespace
{

// The signals of the program are as a shell leaves them, whoever has started the test.
class DefaultSignals
{
public:
    DefaultSignals()
    {
        sigset_t all;
        sigfillset( &all );
        sigset_t none;
        sigemptyset( &none );
        posix_spawnattr_init( &m_attributes );
        posix_spawnattr_setsigdefault( &m_attributes, &all );
        posix_spawnattr_setsigmask( &m_attributes, &none );
        posix_spawnattr_setflags( &m_attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK );
    }
    ~DefaultSignals() { posix_spawnattr_destroy( &m_attributes ); }
    Q_DISABLE_COPY( DefaultSignals )

    const posix_spawnattr_t* Attributes() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes = {};
};

} // namespace

std::array<int, 2> NewPipe()
{
    std::array<int, 2> ends = { -1, -1 };
    EXPECT_EQ( pipe2( ends.data(), O_CLOEXEC ), 0 );
    return ends;
}

pid_t StartProgram( const QList<QByteArray>& a_arguments, int a_in, int a_out, int a_err,
                    const QList<QByteArray>& a_variables )
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init( &actions );
    posix_spawn_file_actions_adddup2( &actions, a_in, STDIN_FILENO );
    posix_spawn_file_actions_adddup2( &actions, a_out, STDOUT_FILENO );
    posix_spawn_file_actions_adddup2( &actions, a_err, STDERR_FILENO );
    QList<QByteArray> words = QList<QByteArray>{ "env" } + a_variables + ProgramCommand() + a_arguments;
    std::vector<char*> pointers;
    for ( QByteArray& word : words )
        pointers.push_back( word.data() );
    pointers.push_back( nullptr );
    const DefaultSignals defaults;
    pid_t child = -1;
    EXPECT_EQ( posix_spawnp( &child, pointers.front(), &actions, defaults.Attributes(), pointers.data(), environ ), 0 );
    posix_spawn_file_actions_destroy( &actions );
    return child;
}

int WaitFor( pid_t a_child )
{
    int status = 0;
    EXPECT_EQ( waitpid( a_child, &status, 0 ), a_child );
    return WIFEXITED( status ) ? WEXITSTATUS( status ) : -WTERMSIG( status );
}

void FeedPipe( int a_pipe, const QByteArray& a_bytes )
{
    EXPECT_EQ( write( a_pipe, a_bytes.constData(), static_cast<size_t>( a_bytes.size() ) ), a_bytes.size() );
    for ( int waiting = 1; waiting > 0; )
    {
        ASSERT_EQ( ioctl( a_pipe, FIONREAD, &waiting ), 0 );
        constexpr int s_kMillisecond = 1;
        pollfd reader = { a_pipe, 0, 0 };
        poll( &reader, 1, s_kMillisecond );
        ASSERT_EQ( reader.revents & POLLERR, 0 ) << "the program has ended";
    }
}

} // namespace PimManager::Tools
