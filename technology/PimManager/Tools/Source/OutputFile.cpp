#include "OutputFile.h"

#include "TerminalText.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PimManager::vCard::Tools
{

namespace
{

constexpr mode_t s_kMode = 0666;

bool IsSameFile( const struct stat& a_first, const struct stat& a_second )
{
    return a_first.st_dev == a_second.st_dev && a_first.st_ino == a_second.st_ino;
}

bool IsInput( const struct stat& a_file, const QByteArray& a_input )
{
    struct stat input = {};
    const int result = a_input == "-" ? ::fstat( STDIN_FILENO, &input ) : ::stat( a_input.constData(), &input );
    return result == 0 && IsSameFile( a_file, input );
}

} // namespace

OutputFile::OutputFile( const QByteArray& a_fileName, const QList<QByteArray>& a_inputs ) :
    m_fileName( a_fileName ),
    m_descriptor( ::open( a_fileName.constData(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOCTTY, s_kMode ) )
{
    Open( a_inputs );
    m_device = std::make_unique<OutputDevice>( m_descriptor );
}

OutputFile::~OutputFile()
{
    Close();
}

void OutputFile::Close()
{
    m_device->Flush();
    if ( m_reason.isEmpty() && m_device->Error() != 0 )
        m_reason = qt_error_string( m_device->Error() );
    if ( m_descriptor >= 0 && ::close( m_descriptor ) != 0 && m_reason.isEmpty() )
        m_reason = qt_error_string( errno );
    m_descriptor = -1;
}

QString OutputFile::Failure() const
{
    if ( m_reason.isEmpty() )
        return QString();
    return ToShownFileName( m_fileName ) + QStringLiteral( ": cannot be written: " ) + m_reason;
}

void OutputFile::Open( const QList<QByteArray>& a_inputs )
{
    struct stat status = {};
    if ( m_descriptor < 0 || ::fstat( m_descriptor, &status ) != 0 )
    {
        m_reason = qt_error_string( errno );
        return;
    }
    if ( !S_ISREG( status.st_mode ) )
        return;
    const bool isRead = std::any_of( a_inputs.begin(), a_inputs.end(),
                                     [&status]( const QByteArray& a_input ) { return IsInput( status, a_input ); } );
    if ( isRead )
    {
        m_reason = QStringLiteral( "it is one of the files to read" );
        ::close( m_descriptor );
        m_descriptor = -1;
    }
    else if ( ::ftruncate( m_descriptor, 0 ) != 0 )
    {
        m_reason = qt_error_string( errno );
    }
}

} // namespace PimManager::vCard::Tools
