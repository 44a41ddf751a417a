/// \file
/// Folds single characters, so that texts are found without accents and letter case.

#pragma once

#include <QtGlobal>

#include <memory>
#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

/// What a character is in a word.
enum class LetterKind
{
    /// White space, a comma or a semicolon: a word ends.
    Space,
    /// Any other character that is no letter, digit or mark, such as `'` or `-`. A word ends, but the words before and
    /// after it also count as one.
    Joint,
    /// A mark that is left out, or an invisible character. The word continues.
    Ignored,
    Letter,
    /// A character of a script without blanks between words. Each may begin a word.
    Ideograph,
    Digit
};

/// A character without case and accents, in UTF-8.
struct FoldedLetter
{
    char32_t m_character;
    LetterKind m_kind;
    /// The plain letters, such as `u` for `ü`.
    std::string m_plain;
    /// The letters that are written where there is no such letter, such as `ue` for `ü`. The same as m_plain for most
    /// characters.
    std::string m_spelled;
};

/// Folds characters and remembers the last ones.
///
/// - Compatibility forms, such as full width, are replaced (NFKD of Unicode Standard Annex 15), and letter case is.
/// - Marks of Latin, Greek, Cyrillic, Hebrew and Arabic are left out. In other scripts, marks are vowels.
/// - Letters with a usual replacement: `ß` is `s` and `ss`, `đ` is `d` and `dj`, Arabic `ة` is `ه` and `ت`.
/// - Final letters of Greek and Hebrew are the other ones, Persian letters are the Arabic ones, katakana is hiragana.
/// - Digits of all scripts are ASCII digits.
class LetterFolding
{
public:
    /// \param a_character a code point; any number. Constant time.
    /// \return valid until the next call.
    const FoldedLetter& Of( char32_t a_character );

private:
    std::vector<FoldedLetter> m_memory;
};

/// \return the letters that a mark adds to the spelling of a letter, such as `e` for the two dots of `ü`. May be empty.
/// \param a_letter the plain letter in ASCII.
const char* SpellingOfMark( char a_letter, char32_t a_mark );

/// Appends a code point in UTF-8. A surrogate is written as it is.
void AppendUtf8( char32_t a_character, std::string& a_text );

} // namespace PimManager::PhoneBook
