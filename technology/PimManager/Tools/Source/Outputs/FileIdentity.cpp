#include "Outputs/FileIdentity.h"

#include <fcntl.h>

namespace PimManager::Tools
{

FileIdentity FileIdentity::At( int a_folder, const QByteArray& a_name )
{
    struct stat status = {};
    if ( ::fstatat( a_folder, a_name.constData(), &status, AT_SYMLINK_NOFOLLOW ) == 0 )
        return Of( status );
    ::fstat( a_folder, &status );
    return { status.st_dev, status.st_ino, a_name };
}

} // namespace PimManager::Tools
