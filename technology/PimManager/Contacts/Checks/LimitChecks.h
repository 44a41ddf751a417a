/// \file
/// Checks that nothing that is delivered exceeds a limit.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Checks that no card exceeds its limit in bytes, physical lines or nesting, that no line exceeds its limit in bytes,
/// and that the number and the total length of the cards do not exceed their limits.
Broken BrokenLimits( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
