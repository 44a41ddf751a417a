/// \file
/// Nothing that is inserted into a file gets lost.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Inserts a word of letters and digits at random positions of the text and reads it again, several times. The word is
/// in a line of a card, in its name, group, parameters or value, or else in what the report calls dropped, refused,
/// filtered or outside. No diagnostic contains it.
Broken BrokenMarkers( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
