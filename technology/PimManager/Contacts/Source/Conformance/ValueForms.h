/// \file
/// The forms of simple values.

#pragma once

#include "Text/Bytes.h"

#include <string_view>

namespace PimManager::Contacts
{

inline bool IsLetter( char a_byte )
{
    return ( a_byte >= 'A' && a_byte <= 'Z' ) || ( a_byte >= 'a' && a_byte <= 'z' );
}

inline bool IsHexDigit( char a_byte )
{
    return IsDigit( a_byte ) || ( a_byte >= 'A' && a_byte <= 'F' ) || ( a_byte >= 'a' && a_byte <= 'f' );
}

/// These functions return false for an empty text.
bool AreLetters( std::string_view a_text );
bool AreLettersAndDigits( std::string_view a_text );

/// \return true for digits with or without a sign.
bool IsInteger( std::string_view a_text );

/// \return true for digits with or without a sign and a fraction, such as `-122.08`.
bool IsFloat( std::string_view a_text );

/// \return true for digits whose number is in the range.
bool IsBetween( std::string_view a_text, int a_least, int a_most );

/// \return true for TRUE and FALSE in any letter case.
bool IsBoolean( std::string_view a_text );

/// \return true for digits, or digits, a dot and digits, such as `2.1` (RFC 6350, section 5.5).
bool IsPid( std::string_view a_text );

} // namespace PimManager::Contacts
