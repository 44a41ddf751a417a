/// \file
/// Text in the columns of a terminal, where a character takes one column, two or none.

#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace PimManager::Tools
{

/// \return the columns that a terminal gives to a text without control characters, see Cluster. There is no rule that
///         all terminals share.
int ColumnsOf( QStringView a_text );

/// \return the text with blanks behind it, up to so many columns; a wider text as it is.
QString Padded( const QString& a_text, int a_columns );

/// \return a text that fits into so many columns as it is; of a wider one as much as fits with `…` behind it.
/// \param a_columns at least 1.
QString Cut( const QString& a_text, int a_columns );

/// \return the text in lines of at most so many columns. It is broken behind a blank or a slash or before an `@` where
///         there are any, else between characters. At least one line; no character is cut in two or lost but the blank
///         that a line is broken at. Isolates, see Screen, end with a line and begin again on the next one.
/// \param a_columns at least 2.
QStringList Wrapped( const QString& a_text, int a_columns );

/// \return the columns of the widest part of a text that Wrapped() breaks only between characters.
int WidestPart( const QString& a_text );

} // namespace PimManager::Tools
