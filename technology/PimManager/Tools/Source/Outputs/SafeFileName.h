/// \file
/// File names made of text that cannot be trusted.

#pragma once

#include <QByteArray>
#include <QString>

namespace PimManager::Tools
{

/// \return a text as a part of a file name, in UTF-8: letters, digits and marks of any script, at most 100 bytes, and
///         one "-" for whatever stands between. Never empty, never with a dot or a slash, never with "-" at the start:
///         `contact` when nothing is left.
QByteArray ToSafeFileName( const QString& a_text );

} // namespace PimManager::Tools
