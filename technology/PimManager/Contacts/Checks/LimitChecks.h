/// \file
/// Nothing that is delivered exceeds a limit.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// No card has more bytes, physical lines or levels of nesting than its limit, no line more bytes, and the cards
/// together are not more and not longer than theirs.
Broken BrokenLimits( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
