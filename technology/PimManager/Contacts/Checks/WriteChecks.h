/// \file
/// Checks that the output is correct and has the contents of the input.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// For each card, and for each version of vCard:
///
/// - The output is one whole card of the version, and the reader reports nothing about it.
/// - Its lines end in CR LF and have at most 75 octets, except for the names and parameters of 2.1.
/// - Writing it again yields the same bytes.
/// - In the version of the card, the contact is equal, unless the report says that something was left out or changed,
///   or that a name was added or changed.
/// - In another version, the contact has the same names, numbers, mail addresses, notes and pictures, unless the report
///   says that something was left out or changed.
/// - From 4.0 through 3.0 and 2.1 back to 4.0, a second round trip changes nothing in the contact that the first one
///   has kept, and a third one changes no byte.
Broken BrokenWriting( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
