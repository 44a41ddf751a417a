/// \file
/// Checks the tokens and lines of the scanner.

#pragma once

#include "Violation.h"

#include "PimVCardTranscript.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// The tokens that a new scanner read from a text.
struct TakenTokens
{
    /// All tokens that are not empty, in order, without the U+0000 at the end of the text.
    QStringList m_tokens;
    /// The tokens that were read as single characters.
    QStringList m_singles;
    /// The line that was found by a search, and its expression. Empty if there was no search.
    QString m_line;
    QRegularExpression m_lineExpression;
};

/// Runs the steps of a script that read with expressions, up to the first seek.
TakenTokens TakeTokens( const QByteArray& a_text, const PimVCardScannerScript& a_script );

/// Checks that every token is in the text after the previous one, except for backslashes, that a single one is one
/// character, and that the line is in the text and contains a match.
/// \param a_text UTF-8 without NUL. A text with a backslash before a carriage return has no violations, because the
///               carriage return may then be read twice.
Violation CheckTokens( const QByteArray& a_text, const TakenTokens& a_taken );

} // namespace PimManager::vCard::Fuzz
