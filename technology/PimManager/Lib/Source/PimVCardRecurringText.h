/// \file
/// The names that stand in every card. Private to the component.

#pragma once

#include <QString>

namespace PimManager::vCard
{

/// Makes a text that will likely be made again, such as TEL, TYPE or a line end: each thread keeps the last short ones,
/// and the cards share them.
/// \param a_text ASCII, at least one byte.
QString PimVCardRecurringText( const char* a_text, int a_length );

} // namespace PimManager::vCard
