/// \file
/// Which pimvcard this is.

#pragma once

#include <QString>

namespace PimManager::Tools
{

/// \return the name and the version of the program, as `--version` prints them.
QString VersionText();

} // namespace PimManager::Tools
