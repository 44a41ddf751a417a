/// \file
/// Decodes ISO-2022-JP.

#pragma once

#include "Text/DecodedText.h"
#include "Text/SystemCodec.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Decodes a text in ISO-2022-JP (RFC 1468), with half-width katakana (`ESC ( I`) and JIS X 0212 (`ESC $ ( D`). The
/// text begins in ASCII. The Roman set of JIS X 0201 (`ESC ( J`) is read as ASCII, as its writers mean a backslash by
/// the byte of the yen sign.
///
/// The escape character of another escape sequence is malformed. Both bytes of a pair without a character are
/// malformed, so that the pairs after it remain pairs. Control characters and blanks are valid between pairs.
///
/// \param a_codec decodes EUC-JP, which has the same characters as pairs of bytes beyond ASCII. So no escape sequence
///                reaches iconv(), and no module for ISO-2022-JP is needed.
void DecodeIso2022Jp( std::string_view a_bytes, SystemCodec& a_codec, DecodedText& a_text );

} // namespace PimManager::Contacts
