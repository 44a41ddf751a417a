/// \file
/// The text of a file, converted independently of the reader.

#pragma once

#include <QByteArray>

namespace PimManager::Contacts::Checks
{

/// \return true if the file begins with a byte order mark of UTF-16, or if every second one of its first four bytes is
///         zero and no other. A shorter file needs at least two bytes, and all of them count.
bool IsUtf16( const QByteArray& a_file );

/// \return the text of a file in UTF-16 in UTF-8, its byte order mark included; another file as it is. A surrogate
///         without its other half, and a last single byte, become U+FFFD.
QByteArray ConvertedTextOf( const QByteArray& a_file );

} // namespace PimManager::Contacts::Checks
