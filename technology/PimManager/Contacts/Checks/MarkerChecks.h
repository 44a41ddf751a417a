/// \file
/// Checks that nothing that is inserted into a file is lost.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Inserts a word of letters and digits at random positions of the text and reads it again, several times. The word
/// must be in the name, group, parameters or value of a line of a card, or else in an extent that is dropped, refused,
/// filtered or outside. No diagnostic may contain it.
Broken BrokenMarkers( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
