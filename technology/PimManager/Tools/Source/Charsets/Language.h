/// \file
/// How well a text fits a language, by how common its letters are.

#pragma once

#include <QChar>
#include <QHash>
#include <QString>

#include <string_view>

namespace PimManager::Tools
{

/// What a language is written in.
enum class Script
{
    Latin,    ///< ASCII, and a few letters more
    Alphabet, ///< Cyrillic, Greek and others, where ASCII letters belong to another language
    EastAsian,
    Japanese, ///< East Asian, and all kana are common
};

/// What a text costs in a language: the sum of the costs of its characters. The cost of a character is about ten times
/// the natural logarithm of how rarely it occurs. Texts that are the same bytes can be compared by their costs,
/// whatever character sets they were decoded with: the cheapest one is the most probable one.
struct Fit
{
    int m_cost = 0;
    /// The characters beyond ASCII: their number, and their part of the cost.
    int m_wide = 0;
    int m_wideCost = 0;

    Fit& operator+=( const Fit& a_other );
};

/// The letters of a language by how common they are.
class Language
{
public:
    /// \param a_letters lower-case letters beyond ASCII, by their share of all letters beyond ASCII in a text. There is
    ///                  a slash between groups, and the most common ones are first. The groups of Latin are of about
    ///                  100 %, 37 %, 14 %, 5 %, 2 %, 0.7 % and 0.25 %, those of an alphabet of 8 %, 4 %, 1.5 %, 0.4 %
    ///                  and 0.1 %. East Asian languages have one group, of their common characters.
    Language( Script a_script, std::u16string_view a_letters );

    /// \param a_word a word, or a text without blanks. Surrogates count as unusual characters.
    Fit FitOf( const QString& a_word ) const;

    /// \return false if the characters beyond ASCII are not common ones of the language.
    bool IsCommon( const Fit& a_fit ) const;

private:
    int CostOf( QChar a_letter ) const;
    int CostOfUnusual( QChar a_letter ) const;

    Script m_script;
    // Of the usual letters.
    QHash<ushort, int> m_costs;
};

} // namespace PimManager::Tools
