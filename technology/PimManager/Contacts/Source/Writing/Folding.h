/// \file
/// Folds content lines.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// The longest physical line in octets, without its line ending (RFC 2426, section 2.6; RFC 6350, section 3.2).
constexpr size_t s_kLineLength = 75;

/// \return true for a byte of UTF-8 that is not the first byte of its character.
inline bool IsInsideCharacter( char a_byte )
{
    return ( static_cast<unsigned char>( a_byte ) & 0xC0U ) == 0x80;
}

/// \return true if a text ends with the first byte of an escape, of a value or of a parameter.
bool EndsInEscape( std::string_view a_text );

/// Appends a content line with its line ending. A line that is too long is folded: never inside a character, and never
/// inside an escape of a value (a backslash and what follows it) or of a parameter (a caret and what follows it).
/// \param a_line in UTF-8, without line breaks.
void AppendFolded( std::string_view a_line, QByteArray& a_out );

/// Appends a line whose value is QUOTED-PRINTABLE. A line that is too long is divided by soft line breaks in its value,
/// never inside an encoded byte.
/// \param a_head the line up to and including the colon.
void AppendSoftBroken( std::string_view a_head, std::string_view a_value, QByteArray& a_out );

} // namespace PimManager::Contacts
