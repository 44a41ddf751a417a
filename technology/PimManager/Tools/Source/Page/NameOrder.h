/// \file
/// Where a contact is in an alphabet.

#pragma once

#include <QString>

namespace PimManager::Tools
{

/// The place of a name: first by section, then by text.
struct NamePlace
{
    /// The heading of the section: a letter in capitals and without accents, as in `A` for `Ångström`. Kana have the
    /// first letter of their row, Hangul the first consonant, and all Han characters are in one section. Names without
    /// a letter, and those that begin with a digit, are in `#`.
    QString m_section;
    /// The text to compare in the section: without accents, letter case and whatever precedes the first letter.
    QString m_text;
};

/// \param a_name the text to sort by. Linear in its length.
NamePlace PlaceOf( const QString& a_name );

/// By code point, which keeps scripts together; `#` is last. The locale makes no difference.
bool operator<( const NamePlace& a_left, const NamePlace& a_right );

} // namespace PimManager::Tools
