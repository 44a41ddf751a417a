/// \file
/// Words in telephone numbers.

#pragma once

#include <QStringView>

#include <string_view>

namespace PimManager::PhoneBook
{

/// \return true if a word such as `ext` or `Durchwahl` stands before an extension. In any letter case.
bool IsExtensionWord( QStringView a_word );

/// \return the number of letters that stand for the keys that they are on (ITU-T E.161) after these digits: those that
///         complete the number of a service such as 1-800. 0 after other digits.
size_t LettersAfter( std::string_view a_digits );

/// \return the key that an ASCII letter is on; `\0` for other characters.
char KeyOfLetter( char16_t a_letter );

inline bool IsAsciiLetter( char16_t a_character )
{
    return KeyOfLetter( a_character ) != '\0';
}

} // namespace PimManager::PhoneBook
