/// \file
/// Checks the texts of a line against its bytes, joins and fold style.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Joins the physical lines of each line again, using only its joins and the fold style of its card. The value must be
/// the text after the colon, byte for byte, and group, name and parameters must be before it.
Broken BrokenLineTexts( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
