/// \file
/// Options of a phone book: the region of its user, and how contacts are sorted.
///
/// \code
/// PimPhoneBookOptions options;
/// options.SetRegion( QStringLiteral( "DE" ) );
/// options.SetLocale( QLocale( QStringLiteral( "de_DE" ) ) );
/// const PimPhoneBook phoneBook( PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) ), options );
/// \endcode

#pragma once

#include <PimManager/PhoneBook/PimPhoneBookExport.h>

#include <QLocale>
#include <QSharedDataPointer>
#include <QString>

namespace PimManager::PhoneBook
{

class PimPhoneBookOptionsPrivate;

/// The name by which contacts are sorted and divided into sections.
enum class PimPhoneBookSorting
{
    /// Family name, then given name.
    FamilyName,
    /// Given name, then family name.
    GivenName
};

/// Options of a PimPhoneBook. Implicitly shared; copying is cheap.
class PIMPHONEBOOK_EXPORT PimPhoneBookOptions
{
public:
    /// Creates options without a region, with seven digits for an ending, and with the default locale of the program.
    PimPhoneBookOptions();
    PimPhoneBookOptions( const PimPhoneBookOptions& a_other );
    PimPhoneBookOptions& operator=( const PimPhoneBookOptions& a_other );
    ~PimPhoneBookOptions();

    /// The region in which numbers without a country code are dialled: two letters (ISO 3166-1), such as `DE`, in
    /// capitals. Empty by default; then nothing is assumed about such numbers.
    QString Region() const;
    /// \param a_region in any letter case. An unknown region is the same as an empty one; Region() is then empty.
    void SetRegion( const QString& a_region );

    /// The number of last digits that must be equal for PimPhoneBookGrade::Ending. Default: 7.
    int EndingDigits() const;
    /// \param a_digits at least 3; a smaller number is 3.
    void SetEndingDigits( int a_digits );

    /// The locale whose alphabet sorts the contacts. Default: QLocale(), the locale of the program.
    QLocale Locale() const;
    void SetLocale( const QLocale& a_locale );

    /// Default: the family name.
    PimPhoneBookSorting Sorting() const;
    void SetSorting( PimPhoneBookSorting a_sorting );

private:
    QSharedDataPointer<PimPhoneBookOptionsPrivate> d;
};

} // namespace PimManager::PhoneBook
