/// \file
/// Long texts, cut for reading.

#pragma once

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Tools
{

/// \return a text of at most 80 characters as it is; of a longer one the first 60 and its length, as in
///         `/9j/4AAQSkZJRgABAQ… (5944 characters)`. No character is cut in two.
QString Shortened( const QString& a_text );

/// \return a list of at most 20 texts as it is; of a longer one the first 20 and a text that tells how many there are.
QStringList ShortenedList( const QStringList& a_texts );

} // namespace PimManager::vCard::Tools
