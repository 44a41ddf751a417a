/// \file
/// Checks that the texts of a result come from the source.

#pragma once

#include "Violation.h"

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// How a text of a result may differ from the text that it was read from.
enum class TextChange
{
    /// The changes of the scanner to tokens: a backslash is left out before any character.
    Tokens,
    /// The changes of the parser to results: a backslash is left out before a character that can be escaped or that
    /// delimits, and soft line breaks are removed. A backslash directly after a soft line break is always lost.
    Results
};

/// Checks that each of these texts is in the source, one after the other, except for the changes.
/// \param a_source the text that was read, after its preparation.
/// \param a_texts  the texts in the order of reading; none may be empty.
/// \return the first text that is not in the source. Empty if all are. Linear in the source for texts that differ
///         early.
Violation CheckOrigin( const QString& a_source, const QStringList& a_texts, TextChange a_change );

} // namespace PimManager::vCard::Fuzz
