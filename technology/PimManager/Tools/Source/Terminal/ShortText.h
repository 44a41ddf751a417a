/// \file
/// Long texts, cut for reading.

#pragma once

#include <QString>
#include <QStringList>

namespace PimManager::Tools
{

/// How much of a text is shown.
enum class TextLength
{
    Short, ///< long texts and lists are cut, and their length is added
    Full
};

/// \return a text of at most 80 characters as it is; of a longer one the first 60 and its length, as in
///         `/9j/4AAQSkZJRgABAQ… (5944 characters)`. No character is cut in two.
QString Shortened( const QString& a_text );

/// The same with lengths of the caller's choice: a text of at most a_whole characters as it is, of a longer one the
/// first a_kept.
QString Shortened( const QString& a_text, int a_whole, int a_kept );

/// \return a list of at most 20 texts as it is; of a longer one the first 20 and a text that tells how many there are.
QStringList ShortenedList( const QStringList& a_texts );

/// \return the text as Shortened() returns it if a_length is Short, and else as it is.
QString Shortened( const QString& a_text, TextLength a_length );

/// \return the list as ShortenedList() returns it if a_length is Short, each of its texts shortened, and else as it is.
QStringList ShortenedList( const QStringList& a_texts, TextLength a_length );

} // namespace PimManager::Tools
