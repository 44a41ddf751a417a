/// \file
/// A telephone number, to compare with others.
///
/// \code
/// const auto caller = PimPhoneBookNumber::FromText( QStringLiteral( "+49 30 901820" ), QStringLiteral( "DE" ) );
/// const auto number = PimPhoneBookNumber::FromText( QStringLiteral( "(030) 90 18 20" ), QStringLiteral( "DE" ) );
/// qInfo() << number.International() << ( caller.Compare( number ) == PimPhoneBookGrade::National );
/// // "+4930901820" true
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactPhone.h>
#include <PimManager/PhoneBook/PimPhoneBookExport.h>
#include <PimManager/PhoneBook/PimPhoneBookMatch.h>

#include <QSharedDataPointer>
#include <QString>

namespace PimManager::PhoneBook
{

class PimPhoneBookNumberPrivate;

/// A telephone number as it is dialled from a region. Implicitly shared; copying is cheap.
///
/// A number is read in any notation: with blanks, punctuation and brackets, such as `+49 (0)30 90-18 20`; with digits
/// of any script; as a `tel:` URI (RFC 3966); with an extension, such as `ext. 12`, `x12`, `#12` or `Durchwahl 12`;
/// with pauses (`p`, `w`, `,` or `;`), after which the digits are an extension; with a code before it, such as `*31#`,
/// which is left out; and with letters after a prefix such as 1-800. A code such as `*100#` is a number without a
/// country. It is the same as an equal code only.
///
/// The region decides which digits mean a country: its trunk prefix is removed and its international prefix, such as 00
/// or 011, is the same as `+`. Without a region, only a `+` or a phone-context means a country.
///
/// Calling codes and prefixes are those of ITU-T E.164. A number has up to 32 digits. Of a longer one, the last 32
/// count, and its grades are at most PimPhoneBookGrade::Ending.
class PIMPHONEBOOK_EXPORT PimPhoneBookNumber
{
public:
    /// Creates a null number.
    PimPhoneBookNumber();
    PimPhoneBookNumber( const PimPhoneBookNumber& a_other );
    PimPhoneBookNumber( PimPhoneBookNumber&& a_other ) noexcept;
    PimPhoneBookNumber& operator=( const PimPhoneBookNumber& a_other );
    PimPhoneBookNumber& operator=( PimPhoneBookNumber&& a_other ) noexcept;
    ~PimPhoneBookNumber();

    /// Reads a number.
    /// \param a_text any text; may be empty. A second number after the first is ignored.
    /// \param a_region the region in which it is dialled: two letters (ISO 3166-1), such as `DE`, in any letter case.
    ///                 An unknown region is the same as an empty one.
    /// \return a null number if the text has no digits. Linear in the length of the text.
    static PimPhoneBookNumber FromText( const QString& a_text, const QString& a_region = QString() );

    /// Reads the number of a contact, with its extension and its phone-context.
    static PimPhoneBookNumber FromPhone( const Contacts::PimContactPhone& a_phone,
                                         const QString& a_region = QString() );

    /// \return true if there are no digits.
    bool IsNull() const;

    /// \return `+`, the calling code and the number, such as `+4930901820`. Empty if the country is not known: without
    ///         a region, for a code, for a number that is too short or too long for its region, and for one that may be
    ///         local because it has no trunk prefix.
    QString International() const;

    /// \return the digits after the calling code and without trunk prefix, such as `30901820`. If the country is not
    ///         known, the same as Digits().
    QString National() const;

    /// \return the digits as written, with the calling code but without `+`, such as `030901820`. `*` and `#` of a code
    ///         are in it.
    QString Digits() const;

    /// \return the digits of the extension; empty if there is none.
    QString Extension() const;

    /// Compares two numbers. It does not matter which is compared with which.
    ///
    /// - Exact: both were written with a country, and their international forms are equal.
    /// - National: the international forms are equal, but at least one follows from its region. Also two numbers
    ///   without a country, such as short numbers and codes, with equal digits.
    /// - Ending: the last digits are equal. No more is certain: the country is different or not known, a calling code
    ///   lacks its `+`, the area code or the trunk prefix is missing, or only one number has an extension.
    ///
    /// \param a_endingDigits the number of last digits that must be equal for PimPhoneBookGrade::Ending. At least 3; a
    ///                       smaller number is 3. Numbers with fewer digits must be equal.
    /// \return the grade. None for two numbers with different extensions, and for a null number.
    PimPhoneBookGrade Compare( const PimPhoneBookNumber& a_other, int a_endingDigits = 7 ) const;

    /// \return a hash value that is equal for two numbers if Compare() does not return None.
    /// \param a_endingDigits as for Compare().
    uint EndingHash( int a_endingDigits = 7 ) const;

    /// \return true if the digits and the extension are equal and the same country was meant.
    bool operator==( const PimPhoneBookNumber& a_other ) const;
    bool operator!=( const PimPhoneBookNumber& a_other ) const { return !( *this == a_other ); }

private:
    explicit PimPhoneBookNumber( PimPhoneBookNumberPrivate* a_private );

    QSharedDataPointer<PimPhoneBookNumberPrivate> d;
};

} // namespace PimManager::PhoneBook
