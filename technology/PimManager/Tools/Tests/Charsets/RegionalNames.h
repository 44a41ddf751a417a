/// \file
/// Names, places and companies as they are usual in a language, to make address books of.

#pragma once

#include <QStringList>

#include <vector>

namespace PimManager::Tools
{

/// The words of a language. The tables of the program were written before them and from other sources. Do not adapt the
/// tables to these words, or the tests prove nothing.
struct RegionalNames
{
    const char* m_language;
    /// The family name comes first, without a blank behind it.
    bool m_isEastAsian;
    QStringList m_families;
    QStringList m_given;
    QStringList m_towns;
    QStringList m_streets;
    QStringList m_companies;
    QStringList m_notes;
};

std::vector<RegionalNames> RussianNames();
std::vector<RegionalNames> JapaneseNames();
std::vector<RegionalNames> SimplifiedChineseNames();
std::vector<RegionalNames> TraditionalChineseNames();
std::vector<RegionalNames> KoreanNames();
/// Polish, Czech, Hungarian and Croatian.
std::vector<RegionalNames> CentralEuropeanNames();
/// German, French, Spanish, Portuguese and Danish.
std::vector<RegionalNames> WesternEuropeanNames();

} // namespace PimManager::Tools
