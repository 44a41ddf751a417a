#include "BookReader.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace PimManager::vCard::Tools
{

namespace
{

constexpr qint64 s_kBlock = 1 << 18;

// The descriptor of one input; standard input is not ours to close.
class Input
{
public:
    explicit Input( const QByteArray& a_fileName ) :
        m_isStandardInput( a_fileName == "-" ),
        m_descriptor( m_isStandardInput ? STDIN_FILENO
                                        : ::open( a_fileName.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY ) )
    {
    }
    ~Input()
    {
        if ( !m_isStandardInput && m_descriptor >= 0 )
            ::close( m_descriptor );
    }
    Q_DISABLE_COPY( Input )

    int Descriptor() const { return m_descriptor; }

private:
    const bool m_isStandardInput;
    const int m_descriptor;
};

Book Refusal( const QString& a_reason )
{
    return { QByteArray(), a_reason };
}

Book SystemRefusal( int a_error )
{
    return Refusal( a_error == EISDIR ? QStringLiteral( "is a folder" ) : qt_error_string( a_error ) );
}

Book TooLarge( qint64 a_limit )
{
    return Refusal( QStringLiteral( "is too large: more than %1 bytes cannot be read at once" ).arg( a_limit ) );
}

void WaitUntilReadable( int a_descriptor )
{
    constexpr int s_kForEver = -1;
    pollfd waited = { a_descriptor, POLLIN, 0 };
    poll( &waited, 1, s_kForEver );
}

// As the system's read, without its interruptions.
qint64 ReadBlock( int a_descriptor, char* a_data, qint64 a_size )
{
    for ( ;; )
    {
        const ssize_t count = ::read( a_descriptor, a_data, static_cast<size_t>( a_size ) );
        if ( count >= 0 || ( errno != EINTR && errno != EAGAIN ) )
            return count;
        if ( errno == EAGAIN )
            WaitUntilReadable( a_descriptor );
    }
}

Book ReadAll( int a_descriptor, qint64 a_expected, qint64 a_limit )
{
    std::vector<char> block( static_cast<size_t>( s_kBlock ) );
    QByteArray bytes;
    bytes.reserve( static_cast<int>( std::min( a_expected, a_limit ) ) );
    for ( ;; )
    {
        const qint64 count = ReadBlock( a_descriptor, block.data(), s_kBlock );
        if ( count < 0 )
            return SystemRefusal( errno );
        if ( count == 0 )
            return { bytes, QString() };
        if ( bytes.size() + count > a_limit )
            return TooLarge( a_limit );
        bytes.append( block.data(), static_cast<int>( count ) );
    }
}

} // namespace

Book ReadBook( const QByteArray& a_fileName, qint64 a_limit )
{
    const Input input( a_fileName );
    struct stat status = {};
    if ( input.Descriptor() < 0 || ::fstat( input.Descriptor(), &status ) != 0 )
        return SystemRefusal( errno );
    const qint64 expected = S_ISREG( status.st_mode ) ? status.st_size : 0;
    if ( expected > a_limit )
        return TooLarge( a_limit );
    return ReadAll( input.Descriptor(), expected, a_limit );
}

} // namespace PimManager::vCard::Tools
