#include "TerminalRun.h"

#include "ProgramProcess.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace PimManager::Tools
{

namespace
{

// The other end of a new terminal.
int OpenTerminal( int a_master, int a_columns )
{
    EXPECT_EQ( grantpt( a_master ), 0 );
    EXPECT_EQ( unlockpt( a_master ), 0 );
    std::array<char, 64> name = {};
    EXPECT_EQ( ptsname_r( a_master, name.data(), name.size() ), 0 );
    const int terminal = open( name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC );
    EXPECT_GE( terminal, 0 );
    const winsize size = { 40, static_cast<unsigned short>( a_columns ), 0, 0 };
    EXPECT_EQ( ioctl( terminal, TIOCSWINSZ, &size ), 0 );
    return terminal;
}

// False once nothing more can come.
bool Take( int a_descriptor, std::string& a_text )
{
    std::array<char, 4096> bytes = {};
    const ssize_t count = read( a_descriptor, bytes.data(), bytes.size() );
    for ( ssize_t i = 0; i < count; ++i )
    {
        const char byte = bytes.at( static_cast<size_t>( i ) );
        const char next = i + 1 < count ? bytes.at( static_cast<size_t>( i + 1 ) ) : '\0';
        if ( byte != '\r' || next != '\n' )
            a_text += byte;
    }
    return count > 0 || ( count < 0 && errno == EINTR );
}

} // namespace

TerminalRun::TerminalRun( const QList<QByteArray>& a_arguments, Watched a_watched, int a_columns,
                          const QList<QByteArray>& a_variables ) :
    m_terminal( posix_openpt( O_RDWR | O_NOCTTY | O_CLOEXEC ) )
{
    const int terminal = OpenTerminal( m_terminal, a_columns );
    const std::array<int, 2> input = NewPipe();
    const std::array<int, 2> output = NewPipe();
    m_input = input[1];
    m_output = output[0];
    const QList<QByteArray> variables = QList<QByteArray>{ "TERM=xterm", "NO_COLOR=1", "COLUMNS=" } + a_variables;
    m_child =
        StartProgram( a_arguments, input[0], a_watched == Watched::Both ? terminal : output[1], terminal, variables );
    for ( const int descriptor : { terminal, input[0], output[1] } )
        close( descriptor );
}

TerminalRun::~TerminalRun()
{
    for ( const int descriptor : { m_terminal, m_input, m_output } )
    {
        if ( descriptor >= 0 )
            close( descriptor );
    }
}

void TerminalRun::Feed( const QByteArray& a_bytes )
{
    FeedPipe( m_input, a_bytes );
}

void TerminalRun::Interrupt() const
{
    EXPECT_EQ( kill( m_child, SIGINT ), 0 );
}

int TerminalRun::Finish()
{
    close( m_input );
    m_input = -1;
    Collect();
    return WaitFor( m_child );
}

void TerminalRun::Collect()
{
    constexpr int s_kForEver = -1;
    std::array<pollfd, 2> waited = { pollfd{ m_terminal, POLLIN, 0 }, pollfd{ m_output, POLLIN, 0 } };
    while ( waited[0].fd >= 0 || waited[1].fd >= 0 )
    {
        poll( waited.data(), waited.size(), s_kForEver );
        if ( waited[0].revents != 0 && !Take( m_terminal, m_screen ) )
            waited[0].fd = -1;
        if ( waited[1].revents != 0 && !Take( m_output, m_pipe ) )
            waited[1].fd = -1;
    }
}

} // namespace PimManager::Tools
