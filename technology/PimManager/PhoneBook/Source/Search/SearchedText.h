/// \file
/// What a person has typed.

#pragma once

#include <QString>

#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

/// How numbers are dialled at home. Empty if the region is not known.
struct Dialling
{
    /// The calling code, such as `49`.
    std::string m_code;
    /// What is dialled before a national number, such as `0`; may be empty. Some countries have several.
    std::vector<std::string> m_prefixes;
};

/// A word that is searched for: any of these.
struct SearchedWord
{
    /// Beginnings of words, folded.
    std::vector<std::string> m_beginnings;
    /// Beginnings of words as keys from 2 to 9.
    std::vector<std::string> m_keys;
    /// Parts of numbers.
    std::vector<std::string> m_digits;
    /// Beginnings of numbers; each has at least three digits.
    std::vector<std::string> m_numberBeginnings;

    bool operator<( const SearchedWord& a_other ) const;
    bool operator==( const SearchedWord& a_other ) const;
};

/// The words of which a contact must contain each.
struct SearchedWords
{
    /// Sorted, each once.
    std::vector<SearchedWord> m_words;
    /// True if at least one must be in a name or organisation.
    bool m_needsName = false;

    bool operator==( const SearchedWords& a_other ) const
    {
        return m_needsName == a_other.m_needsName && m_words == a_other.m_words;
    }
};

/// Reads a text. It can be read in several ways: `jean-luc` as two words or as one, `+49 30` as two words or as one
/// number. A contact matches that contains each word of any way.
/// \return the ways. Empty if the text has no word.
std::vector<SearchedWords> ReadSearchedText( const QString& a_text, const Dialling& a_home );

/// Reads keys: as one number, and as words with `0` and `1` between them, of which at least one is in a name.
std::vector<SearchedWords> ReadSearchedKeys( const QString& a_keys, const Dialling& a_home );

/// \return the other ways in which the number that begins with digits can be written in the book: with and without the
///         prefix of international calls, and with the calling code instead of the national prefix, or the reverse.
///         Each has at least three digits.
/// \param a_isInternational true if the digits begin with a calling code, as after `+`.
std::vector<std::string> OtherNotations( const std::string& a_digits, bool a_isInternational, const Dialling& a_home );

} // namespace PimManager::PhoneBook
