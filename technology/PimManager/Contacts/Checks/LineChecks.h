/// \file
/// The texts of a line are what its bytes, joins and fold style say.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Joins the physical lines of each line again, by its joins and the fold style of its card alone: the value is the
/// text after the colon, byte for byte, and group, name and parameters are before it.
Broken BrokenLineTexts( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
