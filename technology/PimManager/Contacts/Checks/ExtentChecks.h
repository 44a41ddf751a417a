/// \file
/// Checks that every byte belongs to exactly one extent, and that the report counts the extents.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Checks that the extents follow each other from byte 0 to the end of the text and have its bytes. Card numbers must
/// never decrease, and there must be no other extents between those of a card.
Broken BrokenExtents( const Subject& a_subject );

/// Checks that the sums of bytes and the numbers of extents in the report are those of the extents.
Broken BrokenSums( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
