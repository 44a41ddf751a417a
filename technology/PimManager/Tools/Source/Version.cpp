#include "Version.h"

#include "PimVCardVersion.h"

namespace PimManager::vCard::Tools
{

QString VersionText()
{
    return QStringLiteral( "pimvcard " PIMVCARD_VERSION_STRING "\n" );
}

} // namespace PimManager::vCard::Tools
