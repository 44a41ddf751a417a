/// \file
/// The cards are those of the extents, and the report counts them.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Checks that each card has the bytes of its extents, that its lines are the extents of kind Line in their order, and
/// that its record matches both.
Broken BrokenCards( const Subject& a_subject );

/// Checks that the report counts the cards, line endings and versions correctly, and states correctly whether something
/// is missing.
Broken BrokenCounts( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
