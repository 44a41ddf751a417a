/// \file
/// A card with other lines.

#pragma once

#include <PimManager/Contacts/PimContactCard.h>

#include <vector>

namespace PimManager::Contacts
{

/// Creates a card of the same version with other lines. Lines of the card are copied unchanged and keep their character
/// set and fold style.
///
/// \param a_card  not null. Its lines that are not in a_lines are left out with their nested cards. All other parts are
///                kept: BEGIN and END, blank lines, and lines that were dropped.
/// \param a_lines lines of the card in its order, and between them lines of other cards. The latter must be valid UTF-8
///                and not folded.
PimContactCard EditedCard( const PimContactCard& a_card, const std::vector<PimContactLine>& a_lines );

} // namespace PimManager::Contacts
