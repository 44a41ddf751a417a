/// \file
/// Fields of CSV.

#pragma once

#include <QByteArray>
#include <QString>

namespace PimManager::Tools
{

/// \return a text as a field of CSV (RFC 4180) in UTF-8: in quotes if it has a comma, a quote, a line break, or a blank
///         at one end; quotes are doubled.
///
/// Spreadsheet programs take a field that begins with `=`, `+`, `-`, `@`, a tab or a carriage return for a formula.
/// Such a field gets an apostrophe before it, unless it is a number such as `+1 555 0100`: a plus or minus sign, then
/// only digits, blanks and `()./-*#`, and at least one digit. Line breaks become line feeds, and other control
/// characters U+FFFD.
QByteArray CsvFieldOf( const QString& a_text );

} // namespace PimManager::Tools
