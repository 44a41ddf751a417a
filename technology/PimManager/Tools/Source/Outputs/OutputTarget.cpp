#include "Outputs/OutputTarget.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <memory>

namespace PimManager::Tools
{

namespace
{

// Standard output as such, even if it is a terminal: no real file has this identity.
const FileIdentity s_kStandardOutput = { 0, 0, QByteArrayLiteral( "-" ) };

QByteArray RealPath( const QByteArray& a_path )
{
    const std::unique_ptr<char, decltype( &std::free )> path( ::realpath( a_path.constData(), nullptr ), &std::free );
    return QByteArray( path.get() );
}

// The folder whose entries are the descriptors of this process: /dev/fd and /proc/self/fd.
bool IsDescriptorFolder( const QByteArray& a_folder )
{
    const QByteArray path = RealPath( a_folder );
    return !path.isEmpty() && path == RealPath( QByteArrayLiteral( "/proc/self/fd" ) );
}

// Empty if it is no link.
QByteArray LinkTarget( const QByteArray& a_path )
{
    std::array<char, PATH_MAX> target = {};
    const ssize_t size = ::readlink( a_path.constData(), target.data(), target.size() );
    return size > 0 ? QByteArray( target.data(), static_cast<int>( size ) ) : QByteArray();
}

} // namespace

OutputTarget::OutputTarget( const QByteArray& a_fileName )
{
    if ( a_fileName == "-" )
        TakeDescriptor( STDOUT_FILENO );
    else
        Examine( a_fileName );
}

void OutputTarget::Examine( const QByteArray& a_path )
{
    // This also leaves it to the system to forbid links that others have planted in shared folders.
    struct stat status = {};
    m_isExisting = ::stat( a_path.constData(), &status ) == 0;
    if ( !m_isExisting && errno != ENOENT )
        return Refuse( qt_error_string( errno ) );
    if ( !FollowLinks( a_path ) )
        return Refuse( qt_error_string( ELOOP ) );
    if ( m_number >= 0 )
        return TakeDescriptor( m_number );
    if ( m_isExisting )
        return TakeFile( status );
    OpenFolder();
}

// Finds the folder and the name at the end of all links, or the number of a descriptor.
bool OutputTarget::FollowLinks( QByteArray a_path )
{
    constexpr int s_kMostLinks = 40;
    for ( int links = 0; links < s_kMostLinks; ++links )
    {
        const auto nameStart = a_path.lastIndexOf( '/' ) + 1;
        m_folderName = nameStart == 0 ? QByteArrayLiteral( "./" ) : a_path.left( nameStart );
        m_name = a_path.mid( nameStart );
        bool isNumber = false;
        const int number = m_name.toInt( &isNumber );
        if ( isNumber && IsDescriptorFolder( m_folderName ) )
        {
            m_number = number;
            return true;
        }
        const QByteArray target = LinkTarget( a_path );
        if ( target.isEmpty() )
            return true;
        a_path = target.startsWith( '/' ) ? target : m_folderName + target;
    }
    return false;
}

void OutputTarget::TakeDescriptor( int a_number )
{
    m_kind = a_number == STDOUT_FILENO ? Kind::StandardOutput : Kind::Descriptor;
    m_number = a_number;
    if ( m_kind == Kind::StandardOutput )
        m_identities.push_back( s_kStandardOutput );
    struct stat status = {};
    if ( ::fstat( a_number, &status ) == 0 && HasOneUse( status ) )
        m_identities.push_back( FileIdentity::Of( status ) );
}

void OutputTarget::TakeFile( const struct stat& a_status )
{
    if ( S_ISDIR( a_status.st_mode ) )
        return Refuse( QStringLiteral( "it is a folder; name a file in it" ) );
    if ( S_ISBLK( a_status.st_mode ) )
        return Refuse( QStringLiteral( "it is a block device" ) );
    if ( S_ISREG( a_status.st_mode ) )
        return OpenFolder();
    m_kind = Kind::Stream;
    if ( HasOneUse( a_status ) )
        m_identities.push_back( FileIdentity::Of( a_status ) );
}

void OutputTarget::OpenFolder()
{
    m_folder = FileDescriptor( ::open( m_folderName.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC ) );
    // A folder that may be written need not be one that may be read.
    if ( !m_folder.IsOpen() && errno == EACCES )
        m_folder = FileDescriptor( ::open( m_folderName.constData(), O_PATH | O_DIRECTORY | O_CLOEXEC ) );
    if ( !m_folder.IsOpen() || m_name.isEmpty() )
        return Refuse( qt_error_string( m_name.isEmpty() ? ENOENT : errno ) );
    m_kind = Kind::File;
    m_identities.push_back( FileIdentity::At( Folder(), m_name ) );
}

void OutputTarget::Refuse( const QString& a_reason )
{
    m_kind = Kind::Unusable;
    m_reason = a_reason;
}

bool HasOneUse( const struct stat& a_status )
{
    return S_ISREG( a_status.st_mode ) || S_ISFIFO( a_status.st_mode );
}

} // namespace PimManager::Tools
