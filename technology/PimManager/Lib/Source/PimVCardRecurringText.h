/// \file
/// The names that occur in every card. Private to the component.

#pragma once

#include <QString>

namespace PimManager::vCard
{

/// Creates a text that is likely to recur, such as TEL, TYPE or a line ending. Each thread keeps the last short ones,
/// and the cards share them.
/// \param a_text ASCII, at least one byte.
QString PimVCardRecurringText( const char* a_text, int a_length );

} // namespace PimManager::vCard
