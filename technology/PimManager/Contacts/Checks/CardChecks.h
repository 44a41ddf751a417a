/// \file
/// The cards are those of the extents, and the report counts them.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Each card has the bytes of its extents, its lines are those extents that are lines, in their order, and its record
/// fits to both.
Broken BrokenCards( const Subject& a_subject );

/// The report counts the cards, line endings and versions that there are, and knows whether something is missing.
Broken BrokenCounts( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
