/// \file
/// QUOTED-PRINTABLE (RFC 2045, section 6.7).

#pragma once

#include <QString>

class QTextCodec;

namespace PimManager::vCardImport
{

/// \param a_value without soft line breaks, as the component delivers it.
/// \param a_codec of the encoded characters; null for UTF-8. Bytes that are not UTF-8 are read as Windows-1252, unless
///                most of them are UTF-8. What stands unencoded beyond ASCII is text already.
/// \return the text. An "=" that encodes nothing stays. Linear in the length of the value.
QString DecodeQuotedPrintable( const QString& a_value, QTextCodec* a_codec );

} // namespace PimManager::vCardImport
