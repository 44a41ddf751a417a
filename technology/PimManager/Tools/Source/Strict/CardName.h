/// \file
/// What to call a card when talking about it.

#pragma once

#include <QString>

namespace PimManager::vCard
{
class PimVCard;
}

namespace PimManager::Tools
{

/// \return the name on the card as written: its FN, or else its N in the order of speech, or else the first of
/// NICKNAME,
///         ORG, EMAIL and TEL; `(no name)` if it has none of them. Not cut and not safe for a terminal.
QString CardName( const vCard::PimVCard& a_card );

} // namespace PimManager::Tools
