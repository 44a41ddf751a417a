/// \file
/// Text in the columns of a terminal, where a character takes one column, two or none.

#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace PimManager::Tools
{

/// \return the columns that terminals give to a text without control characters: two for wide East Asian characters and
///         for pictures, none for marks and joiners, one for all others. Right for nearly all text; there is no rule
///         that all terminals share.
int ColumnsOf( QStringView a_text );

/// \return the text with blanks behind it, up to so many columns; a wider text as it is.
QString Padded( const QString& a_text, int a_columns );

/// \return the text in lines of at most so many columns, broken at blanks where there are any, else between characters.
///         At least one line; no character is cut in two or lost but the blank that a line is broken at.
/// \param a_columns at least 2.
QStringList Wrapped( const QString& a_text, int a_columns );

} // namespace PimManager::Tools
