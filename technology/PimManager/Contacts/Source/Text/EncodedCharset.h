/// \file
/// Decides which character set applies to QUOTED-PRINTABLE text.

#pragma once

#include "Text/Charset.h"

#include <string_view>

namespace PimManager::Contacts
{

/// A character set, and how it was chosen.
struct EncodedCharset
{
    Charset m_charset;
    /// A name was given, but it is unknown.
    bool m_isNameUnknown = false;
    /// No name decided, and the text is not UTF-8.
    bool m_isAssumed = false;
};

/// Chooses the character set of the bytes of a value that were written as QUOTED-PRINTABLE. That of its other bytes is
/// chosen while the card is read, see CharsetChoice. The first rule that applies decides:
///
/// 1. The text is in the character set that its line names, if that is known. ISO-2022-JP counts only for a text with
///    an escape character.
/// 2. A text that is valid UTF-8 is UTF-8.
/// 3. Any other text is in the caller's default, or in UTF-8 if that is unknown.
///
/// \param a_text    the value, QUOTED-PRINTABLE decoded.
/// \param a_named   the value of the first CHARSET parameter; empty without one.
/// \param a_default the name of the caller's default.
EncodedCharset EncodedCharsetOf( std::string_view a_text, std::string_view a_named, std::string_view a_default );

/// \return true if the whole text is valid UTF-8.
bool IsValidUtf8( std::string_view a_text );

} // namespace PimManager::Contacts
