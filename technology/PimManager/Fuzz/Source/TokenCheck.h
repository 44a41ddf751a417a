/// \file
/// What every token and every line that the scanner gives has in common.

#pragma once

#include "Violation.h"

#include "PimVCardTranscript.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// What a new scanner took from a text.
struct TakenTokens
{
    /// All tokens that are not empty, in order, without the U+0000 that stands for the end of the text.
    QStringList m_tokens;
    /// Those of them that were taken as single characters.
    QStringList m_singles;
    /// The line that was sought, and with which expression; empty when there was none.
    QString m_line;
    QRegularExpression m_lineExpression;
};

/// Takes those steps of a script that read through the expressions, up to the first seek.
TakenTokens TakeTokens( const QByteArray& a_text, const PimVCardScannerScript& a_script );

/// Does every token stand in the text after the one before, backslashes aside, is a single one a single character, and
/// does the line stand in the text and hold a match?
/// \param a_text UTF-8 without NUL. One in which a backslash stands before a carriage return, which may then be read
///               twice, has no violations.
Violation CheckTokens( const QByteArray& a_text, const TakenTokens& a_taken );

} // namespace PimManager::vCard::Fuzz
