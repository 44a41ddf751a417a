/// \file
/// Checks that a card has the same meaning without its file.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Reads each card that has BEGIN and END and was not filtered again from its bytes alone. Lines, version and fold
/// style must be the same.
Broken BrokenReread( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
