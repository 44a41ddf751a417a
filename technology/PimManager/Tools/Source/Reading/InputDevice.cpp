#include "Reading/InputDevice.h"

#include "Terminal/Interrupt.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PimManager::Tools
{

namespace
{

void WaitUntilReadable( int a_descriptor )
{
    constexpr int s_kForEver = -1;
    std::array<pollfd, 2> waited = { pollfd{ a_descriptor, POLLIN, 0 }, pollfd{ Interrupt::Descriptor(), POLLIN, 0 } };
    poll( waited.data(), waited.size(), s_kForEver );
}

bool IsInterrupted()
{
    return Interrupt::Descriptor() >= 0 && Interrupt::IsRequested();
}

} // namespace

InputDevice::InputDevice( const QByteArray& a_fileName ) :
    m_isStandardInput( a_fileName == "-" ),
    m_descriptor( m_isStandardInput ? STDIN_FILENO : ::open( a_fileName.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY ) )
{
    Examine();
    if ( m_error == 0 )
        open( QIODevice::ReadOnly | QIODevice::Unbuffered );
}

InputDevice::~InputDevice()
{
    if ( !m_isStandardInput && m_descriptor >= 0 )
        ::close( m_descriptor );
}

QString InputDevice::Reason() const
{
    return m_error == EISDIR ? QStringLiteral( "is a folder; name the files in it" ) : qt_error_string( m_error );
}

// As the system's read, without its interruptions but for ours.
qint64 InputDevice::readData( char* a_data, qint64 a_size )
{
    for ( ;; )
    {
        if ( Interrupt::Descriptor() >= 0 )
            WaitUntilReadable( m_descriptor );
        const ssize_t count = IsInterrupted() ? 0 : ::read( m_descriptor, a_data, static_cast<size_t>( a_size ) );
        if ( count < 0 && errno == EAGAIN )
            WaitUntilReadable( m_descriptor );
        else if ( count < 0 && errno != EINTR )
            return Fail( errno );
        if ( count < 0 )
            continue;
        m_isAtEnd = count == 0 && a_size > 0;
        m_bytesRead += count;
        if ( m_readHandler )
            m_readHandler();
        return m_isAtEnd ? -1 : count;
    }
}

qint64 InputDevice::writeData( const char* /*a_data*/, qint64 /*a_size*/ )
{
    return -1;
}

void InputDevice::Examine()
{
    struct stat status = {};
    if ( m_descriptor < 0 || ::fstat( m_descriptor, &status ) != 0 )
        Fail( errno );
    else if ( S_ISDIR( status.st_mode ) )
        Fail( EISDIR );
    else if ( S_ISREG( status.st_mode ) )
        m_size = status.st_size;
}

qint64 InputDevice::Fail( int a_error )
{
    m_error = a_error;
    m_isAtEnd = true;
    setErrorString( Reason() );
    return -1;
}

} // namespace PimManager::Tools
