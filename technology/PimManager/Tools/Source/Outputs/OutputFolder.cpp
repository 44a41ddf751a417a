#include "Outputs/OutputFolder.h"

#include "Terminal/TerminalText.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace PimManager::Tools
{

OutputFolder::OutputFolder( const QByteArray& a_folder, const OutputClaims& a_claims ) :
    m_path( a_folder ),
    m_claims( a_claims )
{
}

void OutputFolder::Open()
{
    if ( ::mkdir( m_path.constData(), S_IRWXU ) != 0 && errno != EEXIST )
        m_error = errno;
    m_folder = FileDescriptor( ::open( m_path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC ) );
    if ( !m_folder.IsOpen() && m_error == 0 )
        m_error = errno;
}

void OutputFolder::Write( const QByteArray& a_bytes, const QByteArray& a_stem, const QByteArray& a_ending )
{
    if ( m_error != 0 )
        return;
    AtomicFile file( m_folder.Number() );
    file.Device().write( a_bytes );
    m_error = Publish( file, a_stem, a_ending );
    m_written += m_error == 0 ? 1 : 0;
}

void OutputFolder::Close()
{
    if ( m_error == 0 )
        m_error = AtomicFile::SyncFolder( m_folder.Number() );
}

QString OutputFolder::Failure( const QString& a_what ) const
{
    if ( m_error == 0 )
        return QString();
    return ToShownFileName( m_path ) + QStringLiteral( ": %1 cannot be written: " ).arg( a_what ) +
           qt_error_string( m_error );
}

int OutputFolder::Publish( AtomicFile& a_file, const QByteArray& a_stem, const QByteArray& a_ending )
{
    for ( ;; )
    {
        const QByteArray name = a_stem + '-' + QByteArray::number( ++m_number ) + '.' + a_ending;
        if ( m_claims.IsUsed( FileIdentity::At( m_folder.Number(), name ) ) )
            continue;
        const int error = a_file.Publish( name, m_claims.GetExisting() );
        if ( error != EEXIST && error != EISDIR )
            return error;
    }
}

} // namespace PimManager::Tools
