/// \file
/// Options chosen by chance.

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>

namespace PimManager::Contacts::Checks
{

/// \return options that depend on the number alone. One time in four they are the default ones; otherwise each limit is
///         the default, none, small or large, and there may be a filter and another default character set.
PimContactOptions RandomOptions( unsigned a_seed );

} // namespace PimManager::Contacts::Checks
