/// \file
/// The tables of the character sets in which each byte is a character.

#pragma once

#include "Text/Charset.h"

#include <array>

namespace PimManager::Contacts
{

/// The characters of the bytes from 0x80 to 0xFF. Bytes below 0x80 are ASCII in all these sets.
///
/// U+FFFD means that the byte is undefined, and therefore malformed. Bytes without a character are not replaced by
/// control characters: byte 0x81 of windows-1252 is malformed. Bytes 0x80 to 0x9F of ISO-8859 are the control
/// characters U+0080 to U+009F, as that standard says. In windows-1255 and windows-1258, combining marks are characters
/// of their own, which are not composed with the letter before them.
using UpperHalf = std::array<char16_t, 128>;

/// \param a_charset a character set with IsSingleByte().
const UpperHalf& UpperHalfOf( Charset a_charset );

} // namespace PimManager::Contacts
