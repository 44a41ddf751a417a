/// \file
/// The same book as other programs would write it: other line endings, other folds, and lines that must be mended.

#pragma once

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// A way to write a book. Each keeps the cards and their lines.
struct BookStyle
{
    /// A word of ASCII letters, digits and "-".
    QByteArray m_name;

    /// Converts a book with CR LF and 3.0 folds.
    QByteArray ( *m_convert )( const QByteArray& a_book );
};

/// Other line endings and folds. Nothing has to be mended.
QList<BookStyle> CleanStyles();

/// Each has one thing to mend in every line where it can be; the last has all of them in every line.
QList<BookStyle> DamagedStyles();

} // namespace PimManager::vCard::MadeTexts
