/// \file
/// What counts as the first line of a card.

#pragma once

#include <QByteArray>

namespace PimManager::vCard
{
class PimVCardProperty;
}

namespace PimManager::Tools
{

/// Tells if an unfolded line begins a card as the parser reads it: group, letter case, parameters and blanks round the
/// colon are free. Blanks at its end, which the parser does not accept, are: such a line was meant to begin a card.
/// \param a_line in UTF-8, without its line end.
bool IsBeginLine( const QByteArray& a_line );

/// The same for a line that the parser took into a card.
bool IsBeginLine( const vCard::PimVCardProperty& a_property );

} // namespace PimManager::Tools
