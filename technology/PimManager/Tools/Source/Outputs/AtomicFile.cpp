#include "Outputs/AtomicFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PimManager::Tools
{

namespace
{

bool SetGroup( int a_descriptor, const struct stat& a_status )
{
    constexpr auto s_kUnchanged = static_cast<uid_t>( -1 );
    return ::fchown( a_descriptor, a_status.st_uid, a_status.st_gid ) == 0 ||
           ::fchown( a_descriptor, s_kUnchanged, a_status.st_gid ) == 0;
}

// File systems without permissions refuse the change. The file then keeps those that it was created with.
void CopyPermissions( int a_folder, const QByteArray& a_name, int a_descriptor )
{
    constexpr mode_t s_kPermissions = S_IRWXU | S_IRWXG | S_IRWXO;
    struct stat status = {};
    if ( ::fstatat( a_folder, a_name.constData(), &status, AT_SYMLINK_NOFOLLOW ) != 0 || !S_ISREG( status.st_mode ) )
        return;
    const mode_t kept = SetGroup( a_descriptor, status ) ? s_kPermissions : S_IRWXU | S_IRWXO;
    ::fchmod( a_descriptor, status.st_mode & kept );
}

} // namespace

AtomicFile::AtomicFile( int a_folder ) :
    m_folder( a_folder ),
    m_file( a_folder ),
    m_device( m_file.Descriptor() )
{
}

int AtomicFile::Error() const
{
    return m_file.Error() != 0 ? m_file.Error() : m_device.Error();
}

int AtomicFile::Publish( const QByteArray& a_name, Existing a_existing )
{
    m_device.Flush();
    if ( Error() != 0 )
        return Error();
    if ( a_existing == Existing::Replace )
        CopyPermissions( m_folder, a_name, m_file.Descriptor() );
    if ( const int error = Sync() )
        return error;
    return a_existing == Existing::Replace ? m_file.NameReplacing( a_name ) : m_file.NameNew( a_name );
}

int AtomicFile::SyncFolder( int a_folder )
{
    // Not every file system can do it, and not every folder that may be written may be read.
    const bool isSynced = ::fsync( a_folder ) == 0 || errno == EINVAL || errno == EBADF;
    return isSynced ? 0 : errno;
}

int AtomicFile::Sync()
{
    m_isSynced = m_isSynced || ::fsync( m_file.Descriptor() ) == 0;
    return m_isSynced ? 0 : errno;
}

} // namespace PimManager::Tools
