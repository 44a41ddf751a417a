/// \file
/// Rewrites a book in the style of other programs: other line endings, other folds, and lines that must be repaired.

#pragma once

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// A style of writing a book. Each style keeps the cards and their lines.
struct BookStyle
{
    /// A word of ASCII letters, digits and "-".
    QByteArray m_name;

    /// Converts a book with CR LF and 3.0 folds.
    QByteArray ( *m_convert )( const QByteArray& a_book );
};

/// Other line endings and folds. Nothing has to be repaired.
QList<BookStyle> CleanStyles();

/// Each style has one fault in every line where it is possible. The last style has all faults in every line.
QList<BookStyle> DamagedStyles();

} // namespace PimManager::vCard::MadeTexts
