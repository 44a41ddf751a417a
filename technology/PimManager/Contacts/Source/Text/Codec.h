/// \file
/// Decodes text of any character set to UTF-8.

#pragma once

#include "Text/Charset.h"
#include "Text/DecodedText.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Decodes a text to UTF-8.
///
/// Each byte that belongs to no character becomes U+FFFD, and decoding continues at the next byte. So a malformed
/// character never absorbs a delimiter after it. A NUL byte becomes U+0000.
///
/// Shift_JIS, EUC-JP, ISO-2022-JP, EUC-KR, GB18030 and Big5 need a module of the C library's iconv(). All other
/// character sets are built in. A text in ISO-2022-JP begins in ASCII.
///
/// \param a_charset the character set of the text. Without one, the text is decoded as UTF-8.
/// \param a_bytes   the text; at most 4 GiB, and no longer than a QByteArray may be.
/// \param a_out     receives the UTF-8 after what it contains already.
/// \param a_places  if given, receives one element for each byte that is added to \a a_out: the position in \a a_bytes
///                  of the first byte of the character that it came from.
/// \note  May be called in several threads. Linear in the length of the text.
DecodeResult DecodeTo( Charset a_charset, std::string_view a_bytes, QByteArray& a_out,
                       std::vector<quint32>* a_places = nullptr );

} // namespace PimManager::Contacts
