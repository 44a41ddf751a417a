/// \file
/// Checks that a contact reads every card, and that edits change only what they must change.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// For each card:
///
/// - Every function of its contact returns, and two contacts of it are equal.
/// - A random edit does not change copies of the contact, and an added line does not change other lines.
/// - The card of the edited contact has the same contents as the contact, and so has Compacted(), which keeps the ids.
/// - The bytes of that card have the same contents, unless the rest of the card depends on the removed lines. That is
///   the case in a card that is not whole, is not in UTF-8, has another fold style without its longest lines, or has
///   lines that are properties only after certain others.
Broken BrokenContacts( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
