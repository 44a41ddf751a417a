/// \file
/// The order of names, and the sections of a sorted list.

#pragma once

#include <QCollator>
#include <QHash>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <vector>

namespace PimManager::PhoneBook
{

/// Compares names as the alphabet of a locale does, and finds the section of a name.
///
/// A section is a letter of the alphabet. A letter with an accent is in the section of the plain letter, unless the
/// locale sorts it as a letter of its own: `Ä` is in `A` in German, and a section after `Z` in Swedish. So is a pair
/// such as `Ch` in Czech. Other scripts have sections of their own:
///
/// - Japanese kana: the first of their row, such as `か`.
/// - Hangul: the first consonant of the syllable.
/// - Chinese characters: the first letter of their pinyin if the locale sorts by pinyin, and otherwise one section for
///   all, `漢`.
/// - Any other letter: itself.
///
/// A name that begins with no letter is in the section `#`, which is the last one.
class NameOrder
{
public:
    explicit NameOrder( const QLocale& a_locale );

    /// \return a negative number if the first name is before the second one, 0 if they are equal, or a positive number.
    int Compare( const QString& a_first, const QString& a_second ) const;

    /// The number of the section `#`.
    static constexpr int s_kOtherSection = 0;

    /// \return the number of the section of a name.
    int SectionOf( const QString& a_name );

    /// \return the numbers of all sections that SectionOf() has returned, and of `#`, in the order of the alphabet.
    std::vector<int> SortedSections() const;

    /// \param a_section a number that SectionOf() returned.
    QString Label( int a_section ) const { return m_labels.at( a_section ); }

private:
    int SectionOfLetters( const QString& a_letters );
    QString LabelOf( const QString& a_letters ) const;
    QString SectionOfHan( const QString& a_letter ) const;
    bool AreApart( const QString& a_first, const QString& a_second ) const;
    bool IsPair( const QString& a_letters, const QString& a_letter ) const;
    bool HasPinyin() const;
    QString Capital( const QString& a_letter ) const;

    QLocale m_locale;
    QCollator m_collator;
    QStringList m_labels;
    // The sections of the first letters that were seen; -1 for ASCII letters that were not.
    QHash<QString, int> m_sections;
    std::vector<int> m_sectionsOfAscii;
    QString m_lastLatin;
    bool m_hasPinyin = false;
    bool m_hasPairs = false;
};

/// Sorts names by their sections, and by the alphabet in each section.
/// \param a_sections the sections of the names, from SectionOf().
/// \return the indices of the names in their order. Equal names are in the order of their indices. In the order of
///         n log n comparisons; about two for each name if they are nearly sorted by the plain letters.
std::vector<int> SortedNames( const std::vector<QString>& a_names, const std::vector<int>& a_sections,
                              const NameOrder& a_order );

} // namespace PimManager::PhoneBook
