/// \file
/// What to call a card when talking about it.

#pragma once

#include <QString>

namespace PimManager::vCard
{
class PimVCard;
}

namespace PimManager::vCard::Tools
{

/// \return the name on the card: its FN, else its N in the order of speech, else what comes first of NICKNAME, ORG,
///         EMAIL and TEL; "(no name)" when it has none of them. QUOTED-PRINTABLE in UTF-8 is decoded, any other
///         encoding is left as written. Not cut and not made safe for a terminal.
QString CardName( const PimVCard& a_card );

} // namespace PimManager::vCard::Tools
