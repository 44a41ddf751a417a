/// \file
/// A card with other lines.

#pragma once

#include <PimManager/Contacts/PimContactCard.h>

#include <vector>

namespace PimManager::Contacts
{

/// Makes a card of the same version, with other lines. Lines of the card are copied as they are, and what was decided
/// about them remains: their character set, and how their folds are undone.
///
/// \param a_card  not null. Its lines that are not among a_lines are left out, and their nested cards with them. All
///                other parts are kept: BEGIN and END, blank lines, and lines that were dropped.
/// \param a_lines lines of the card in its order, and between them lines of other cards. These are valid UTF-8 and are
///                not folded.
PimContactCard EditedCard( const PimContactCard& a_card, const std::vector<PimContactLine>& a_lines );

} // namespace PimManager::Contacts
