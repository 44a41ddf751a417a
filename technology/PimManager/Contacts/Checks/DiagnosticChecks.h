/// \file
/// The diagnostics are in the order of the file, in their positions, and counted.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Offsets never decrease, line and column are those of the offset, the card is that of the extent there, and the
/// report keeps the first ones and counts all.
Broken BrokenDiagnostics( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
