/// \file
/// Character sets other than UTF-8, by Qt's codecs.

#pragma once

#include <QByteArray>

#include <string_view>

class QTextCodec;

namespace PimManager::vCardImport
{

/// \return the codec of a name as cards write it; null for one that Qt does not know, for UTF-8 and for ASCII.
QTextCodec* CodecOf( std::string_view a_charset );

/// The text of some bytes.
struct PimVCardDecodedText
{
    QByteArray m_utf8;
    /// Characters that could not be read and became U+FFFD.
    int m_replaced = 0;
};

/// \param a_codec null for UTF-8.
PimVCardDecodedText DecodeCharset( std::string_view a_bytes, QTextCodec* a_codec );

} // namespace PimManager::vCardImport
