#include "Version.h"

namespace PimManager::vCard::Tools
{

QString VersionText()
{
    return QStringLiteral( "pimvcard " PIMVCARD_VERSION "\n" );
}

} // namespace PimManager::vCard::Tools
