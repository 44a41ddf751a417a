/// \file
/// Lines that are written differently but say the same.

#pragma once

#include "Changes/ComparedLines.h"

namespace PimManager::PhoneBook
{

/// Makes partners of lines without one if all fields that were read from them are equal.
void MatchFields( ComparedLines& a_old, ComparedLines& a_new );

} // namespace PimManager::PhoneBook
