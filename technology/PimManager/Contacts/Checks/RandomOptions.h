/// \file
/// Random options.

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>

namespace PimManager::Contacts::Checks
{

/// \return options that depend only on the number. In one of four cases they are the default options. Otherwise each
///         limit is the default, none, small or large, and there may be a filter and another default character set.
PimContactOptions RandomOptions( unsigned a_seed );

} // namespace PimManager::Contacts::Checks
