/// \file
/// What the user may have meant.

#pragma once

#include <QString>
#include <QStringList>

namespace PimManager::Tools
{

/// Finds the word that needs the fewest changes to become another one. A change is a letter added, removed or replaced,
/// or two neighbours exchanged. Letter case does not count. More than two changes, or half of the letters, are too
/// many. \param a_word of any length; one that is much longer than the words is not compared. \return ` Did you mean
/// "check"?` with a blank before it; empty if no word is close.
QString SuggestionFor( const QString& a_word, const QStringList& a_words );

} // namespace PimManager::Tools
