#include "Outputs/OutputFile.h"

#include "Terminal/TerminalText.h"

#include <cerrno>
#include <fcntl.h>

namespace PimManager::Tools
{

OutputFile::OutputFile( const QByteArray& a_fileName, OutputClaims& a_claims ) :
    m_fileName( a_fileName ),
    m_claims( a_claims ),
    m_target( a_fileName )
{
    Fail( m_target.Reason() );
    if ( m_reason.isEmpty() )
        Fail( m_claims.Claim( m_target ) );
    if ( m_reason.isEmpty() )
        Open();
    if ( m_device == nullptr )
        OpenStream( -1 );
}

void OutputFile::Fail( const QString& a_reason )
{
    if ( m_reason.isEmpty() )
        m_reason = a_reason;
}

void OutputFile::Abandon()
{
    if ( m_file )
        Fail( QStringLiteral( "no file could be read" ) );
}

void OutputFile::Close()
{
    if ( m_file )
        Publish();
    else if ( m_ownDevice )
        CloseStream();
}

QString OutputFile::Failure() const
{
    if ( m_reason.isEmpty() )
        return QString();
    const QString name = m_fileName == "-" ? QStringLiteral( "standard output" ) : ToShownFileName( m_fileName );
    return name + QStringLiteral( ": cannot be written: " ) + m_reason;
}

void OutputFile::Open()
{
    switch ( m_target.GetKind() )
    {
    case OutputTarget::Kind::Unusable:
        break;
    case OutputTarget::Kind::StandardOutput:
        m_device = &m_claims.StandardOutput();
        break;
    case OutputTarget::Kind::Descriptor:
        OpenStream( ::fcntl( m_target.Number(), F_DUPFD_CLOEXEC, 0 ) );
        break;
    case OutputTarget::Kind::Stream:
        OpenStream( ::open( m_fileName.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY ) );
        break;
    case OutputTarget::Kind::File:
        if ( m_target.IsExisting() && m_claims.GetExisting() == Existing::Keep )
            return FailFor( EEXIST );
        m_file = std::make_unique<AtomicFile>( m_target.Folder() );
        FailFor( m_file->Error() );
        m_device = &m_file->Device();
        break;
    }
}

void OutputFile::OpenStream( int a_descriptor )
{
    FailFor( a_descriptor < 0 ? errno : 0 );
    m_stream = FileDescriptor( a_descriptor );
    m_ownDevice = std::make_unique<OutputDevice>( a_descriptor );
    m_device = m_ownDevice.get();
}

void OutputFile::CloseStream()
{
    m_ownDevice->Flush();
    const int error = m_ownDevice->Error();
    const int closeError = m_stream.Close();
    if ( error != EPIPE )
        FailFor( error != 0 ? error : closeError );
}

void OutputFile::Publish()
{
    if ( !m_reason.isEmpty() )
        return;
    FailFor( m_file->Publish( m_target.Name(), m_claims.GetExisting() ) );
    if ( m_reason.isEmpty() )
        FailFor( AtomicFile::SyncFolder( m_target.Folder() ) );
}

void OutputFile::FailFor( int a_error )
{
    if ( a_error == EEXIST )
        Fail( QStringLiteral( "it exists already; --force replaces it" ) );
    else if ( a_error != 0 )
        Fail( qt_error_string( a_error ) );
}

} // namespace PimManager::Tools
