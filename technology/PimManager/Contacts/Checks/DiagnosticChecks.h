/// \file
/// Checks the order, the positions and the counts of diagnostics.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Checks that offsets never decrease, that line and column match the offset, that the card is that of the extent at
/// the offset, and that the report keeps the first diagnostics and counts all.
Broken BrokenDiagnostics( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
