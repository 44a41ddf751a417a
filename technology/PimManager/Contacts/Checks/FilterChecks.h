/// \file
/// The filter leaves out what is not wanted, and nothing else.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// The cards have only wanted lines. Without limits, they are those lines of the cards without the filter.
Broken BrokenFilter( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
