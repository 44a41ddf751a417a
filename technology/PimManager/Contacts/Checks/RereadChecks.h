/// \file
/// A card means the same without its file.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Each card that has BEGIN and END and was not filtered is read again from its bytes alone: the same lines, version
/// and fold style.
Broken BrokenReread( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
