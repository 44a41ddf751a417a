/// \file
/// The text of a file, converted independently of the reader.

#pragma once

#include <QByteArray>

namespace PimManager::Contacts::Checks
{

/// \return true if the file begins with a byte order mark of UTF-16, or if every second one of its first four bytes is
///         zero and no other. A shorter file must have at least two bytes, and the rule applies to all of them.
bool IsUtf16( const QByteArray& a_file );

/// \return the text of a UTF-16 file in UTF-8, including its byte order mark. Any other file is returned unchanged. A
///         surrogate without its other half and a single byte at the end become U+FFFD.
QByteArray ConvertedTextOf( const QByteArray& a_file );

} // namespace PimManager::Contacts::Checks
