/// \file
/// Every byte belongs to exactly one extent, and the report counts them.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// The extents follow each other from byte 0 to the end of the text and hold its bytes. Card numbers never decrease,
/// and the extents of a card have no others between them.
Broken BrokenExtents( const Subject& a_subject );

/// The sums of bytes and numbers of extents in the report are those of the extents.
Broken BrokenSums( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
