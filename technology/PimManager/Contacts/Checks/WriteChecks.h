/// \file
/// What is written is correct, and says what was read.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// For each card, and for each version of vCard:
///
/// - What is written is one whole card of the version, in which the reader finds nothing to report.
/// - Its lines end in CR LF and have 75 octets at most, except for the names and parameters of 2.1.
/// - Writing it again yields the same bytes.
/// - In the version of the card, it is an equal contact unless the report says that something was left out or changed,
///   or that a name was added or changed.
/// - In another version, the contact has the same names, numbers, mail addresses, notes and pictures, unless the report
///   says that something was left out or changed.
/// - From 4.0 over 3.0 and 2.1 back to 4.0, a second round changes nothing of the contact that the first one has kept,
///   and a third one no byte.
Broken BrokenWriting( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
