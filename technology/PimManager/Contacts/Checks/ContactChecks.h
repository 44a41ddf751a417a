/// \file
/// A contact reads every card, and its edits change what they must and nothing else.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// For each card:
///
/// - Every function of its contact returns, and two contacts of it are equal.
/// - A random edit changes no copy of the contact, and a line that is added changes no other line.
/// - The card of the edited contact says what the contact says, and so does Compacted(), which keeps the ids.
/// - The bytes of that card say the same, unless the rest of the card depends on what was removed: in a card that is
///   not whole, is not in UTF-8, folds in another way without its longest lines, or has lines that are properties only
///   after certain others.
Broken BrokenContacts( const Subject& a_subject );

} // namespace PimManager::Contacts::Checks
