#include "Outputs/OutputDevice.h"

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace PimManager::Tools
{

namespace
{

constexpr int s_kBufferSize = 65536;

// Whoever started the program may have left the other end in non-blocking mode.
void WaitUntilWritable( int a_descriptor )
{
    constexpr int s_kForEver = -1;
    pollfd waited = { a_descriptor, POLLOUT, 0 };
    poll( &waited, 1, s_kForEver );
}

} // namespace

OutputDevice::OutputDevice( int a_descriptor ) :
    m_descriptor( a_descriptor )
{
    m_buffer.reserve( s_kBufferSize );
    open( QIODevice::WriteOnly | QIODevice::Unbuffered );
}

OutputDevice::~OutputDevice()
{
    Flush();
}

void OutputDevice::Flush()
{
    Send( m_buffer.constData(), m_buffer.size() );
    m_buffer.resize( 0 );
}

qint64 OutputDevice::readData( char* /*a_data*/, qint64 /*a_size*/ )
{
    return -1;
}

qint64 OutputDevice::writeData( const char* a_data, qint64 a_size )
{
    if ( m_buffer.size() + a_size > s_kBufferSize )
        Flush();
    if ( a_size > s_kBufferSize )
        Send( a_data, a_size );
    else
        m_buffer.append( a_data, static_cast<int>( a_size ) );
    return a_size;
}

void OutputDevice::Send( const char* a_data, qint64 a_size )
{
    if ( a_size > 0 && m_sendHandler )
        m_sendHandler();
    while ( a_size > 0 && m_error == 0 )
    {
        const ssize_t sent = ::write( m_descriptor, a_data, static_cast<size_t>( a_size ) );
        if ( sent >= 0 )
        {
            a_data += sent;
            a_size -= sent;
        }
        else if ( errno == EAGAIN )
        {
            WaitUntilWritable( m_descriptor );
        }
        else if ( errno != EINTR )
        {
            m_error = errno;
        }
    }
}

} // namespace PimManager::Tools
