/// \file
/// Checks that the filter leaves out unwanted lines and nothing else.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Checks that the cards have only wanted lines. Without limits, they must be exactly the wanted lines of the
/// unfiltered cards.
Broken BrokenFilter( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
