/// \file
/// Reads documents for tests.

#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace PimManager::vCard::Documents
{

/// \param a_name the path of a file from the root of the project, such as `docs/embedded.md`.
/// \return its text, decoded from UTF-8. The test fails if it cannot be read.
QString DocumentText( const QString& a_name );

/// A row of a table, without the row of headings and the one below it.
struct TableRow
{
    /// The line in the document, from 1.
    int m_line = 0;
    /// The last heading above the table, without its "#".
    QString m_heading;
    /// The cells without the blanks around them.
    QStringList m_cells;
};

/// \return the rows of all tables with these headings, in the order of the document.
std::vector<TableRow> TableRows( const QString& a_document, const QStringList& a_headings );

/// \return the text without the backquotes around it; the text itself if there are none.
QString WithoutQuotes( const QString& a_cell );

} // namespace PimManager::vCard::Documents
