#include "Commands/Version.h"

#include "PimVCardVersion.h"

namespace PimManager::Tools
{

QString VersionText()
{
    return QStringLiteral( "pimvcard " PIMVCARD_VERSION_STRING "\n" );
}

} // namespace PimManager::Tools
