/// \file
/// Which pimvcard this is.

#pragma once

#include <QString>

namespace PimManager::vCard::Tools
{

/// \return the name and the version of the program, as `--version` prints them.
QString VersionText();

} // namespace PimManager::vCard::Tools
