/// \file
/// A date, a time or both, as in an address book.
///
/// \code
/// const PimContactDate birthday = PimContactDate::FromText( QStringLiteral( "--04-12" ) );
/// if ( birthday.Date().isValid() )
///     qInfo() << "born on" << birthday.Date();
/// else if ( birthday.Month() && birthday.Day() )
///     qInfo() << "born on day" << *birthday.Day() << "of month" << *birthday.Month();
/// else
///     qInfo() << "born:" << birthday.ToString();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QDate>
#include <QDateTime>
#include <QMetaType>
#include <QObject>
#include <QSharedDataPointer>
#include <QString>
#include <QTime>
#include <QVariant>

#include <optional>

class QDebug;

namespace PimManager::Contacts
{

class PimContactDatePrivate;

/// Any date of a card, such as a birthday, an anniversary or the time of a change. Implicitly shared and immutable.
/// Const functions may run in several threads at once.
///
/// A date is one of three things:
/// - null;
/// - parts, some of which may be unknown: a birthday without a year, a year and a month, a time without a date. Only
///   the combinations of RFC 6350, section 4.3, are possible;
/// - a text, such as `circa 1800`.
///
/// In QML, each part is a property. It is undefined if the part is unknown.
class PIMCONTACT_EXPORT PimContactDate
{
    Q_GADGET
    Q_PROPERTY( QVariant year READ YearValue )
    Q_PROPERTY( QVariant month READ MonthValue )
    Q_PROPERTY( QVariant day READ DayValue )
    Q_PROPERTY( QVariant hour READ HourValue )
    Q_PROPERTY( QVariant minute READ MinuteValue )
    Q_PROPERTY( QVariant second READ SecondValue )
    Q_PROPERTY( QVariant offset READ OffsetValue )
    Q_PROPERTY( bool isUtc READ IsUtc )
    Q_PROPERTY( bool isNull READ IsNull )
    Q_PROPERTY( bool isDate READ IsDate )
    Q_PROPERTY( bool hasTime READ HasTime )
    Q_PROPERTY( bool isText READ IsText )
    Q_PROPERTY( QString text READ Text )

public:
    /// Creates a null date.
    PimContactDate();

    /// Creates a date without a time. It is null if the date is not valid or its year is not from 1 to 9999.
    explicit PimContactDate( const QDate& a_date );

    /// Creates a date with a time. Fractions of a second are dropped. It is null if the date is not valid or its year
    /// is not from 1 to 9999.
    ///
    /// A time of Qt::LocalTime has no offset here, because its offset depends on the machine. To keep the exact moment,
    /// pass `time.toUTC()`. A time whose offset is not a whole number of minutes is converted to UTC.
    explicit PimContactDate( const QDateTime& a_time );

    PimContactDate( const PimContactDate& a_other );
    PimContactDate& operator=( const PimContactDate& a_other );
    ~PimContactDate();

    /// Creates a date from its parts. The ranges are those of the functions below.
    ///
    /// \return the date. Null if a part is out of range, if the day does not exist, or if no standard has a form for
    ///         the parts: year and day without a month, hour and second without a minute, a time with a date that has
    ///         no day, an offset without a time.
    /// \note   Example: `FromParts( {}, 4, 12 )` is 12 April of any year.
    static PimContactDate FromParts( std::optional<int> a_year, std::optional<int> a_month = std::nullopt,
                                     std::optional<int> a_day = std::nullopt, std::optional<int> a_hour = std::nullopt,
                                     std::optional<int> a_minute = std::nullopt,
                                     std::optional<int> a_second = std::nullopt,
                                     std::optional<int> a_offset = std::nullopt );

    /// Reads a text. White space at both ends is ignored; `t` and `z` are read like `T` and `Z`.
    ///
    /// | text | read as |
    /// |---|---|
    /// | `19850412`, `1985-04-12`, `1985-4-2`, `1985/04/12` | year, month and day |
    /// | `1985-04`, `1985` | year and month, year |
    /// | `--0412`, `--04-12`, `--04`, `---12` | without a year |
    /// | `T102200`, `T10:22:00`, `T10:22`, `T10`, `T-2200`, `T--00` | a time; hour or minute may be unknown |
    /// | `T10:22:00Z`, `T102200-0800`, `T10+02` | a time with its offset from UTC |
    /// | `19850412T102200`, `--04-12T10:22`, `1985-04-12 10:22` | both; the date has a day and the time an hour |
    /// | `0000-04-12`, `1985-04-00` | zero is an unknown year, month or day |
    /// | `T10:22:00.5` | fractions of a second are dropped |
    ///
    /// Nothing is guessed. Any other text remains a text: an ambiguous one such as `12.04.1985` or `850412`, a day that
    /// does not exist, or words.
    ///
    /// \return the date or the text. Null if there is only white space.
    static PimContactDate FromText( const QString& a_text );

    /// True if there is neither a part nor a text.
    bool IsNull() const;

    /// True if the year, the month or the day is known. There may be a time as well.
    bool IsDate() const;

    /// True if the hour, the minute or the second is known.
    bool HasTime() const;

    /// True if it is a text.
    bool IsText() const;

    /// From 1 to 9999. Not set if it is unknown.
    std::optional<int> Year() const;

    /// From 1 to 12. Not set if it is unknown.
    std::optional<int> Month() const;

    /// From 1 to 31. Not set if it is unknown. If the month is known, the day exists in it. 29 February is possible if
    /// the year is unknown.
    std::optional<int> Day() const;

    /// From 0 to 23. Not set if it is unknown.
    std::optional<int> Hour() const;

    /// From 0 to 59. Not set if it is unknown.
    std::optional<int> Minute() const;

    /// From 0 to 60, where 60 is a leap second. Not set if it is unknown.
    std::optional<int> Second() const;

    /// The offset of the time from UTC in minutes, from -1439 to 1439, positive east of Greenwich. Not set if the time
    /// is local to an unknown place.
    std::optional<int> Offset() const;

    /// True if the offset is known and 0.
    bool IsUtc() const;

    /// \return the text, without white space at both ends. Empty if this is not a text.
    QString Text() const;

    /// \return the date. Null unless year, month and day are known.
    QDate Date() const;

    /// \return the time. Null unless hour and minute are known. An unknown second is 0, and a leap second is 59.
    QTime Time() const;

    /// \return the date and the time, in UTC, with an offset from UTC, or else in local time. Null unless Date() and
    ///         Time() are valid. Not valid if the local clock skips that time.
    QDateTime DateTime() const;

    /// \return the date in the extended format of ISO 8601, such as `1985-04-12`, `--04-12`, `1985-04`, `T10:22:00` or
    ///         `1985-04-12T10:22:00+02:00`. If this is a text, the text. Empty if this is null.
    Q_INVOKABLE QString ToString() const;

    /// Compares all parts and the text. `T10:22Z` and `T12:22+02:00` are not equal.
    bool operator==( const PimContactDate& a_other ) const;
    bool operator!=( const PimContactDate& a_other ) const;

private:
    friend class PimContactDatePrivate; // creates dates from the bytes of a card
    explicit PimContactDate( PimContactDatePrivate* a_private );

    QVariant YearValue() const;
    QVariant MonthValue() const;
    QVariant DayValue() const;
    QVariant HourValue() const;
    QVariant MinuteValue() const;
    QVariant SecondValue() const;
    QVariant OffsetValue() const;

    QSharedDataPointer<PimContactDatePrivate> d;
};

/// Prints which parts are known, such as `PimContactDate(year month day)`, or that it is a text. The values are never
/// printed, so that no birthday appears in a log.
PIMCONTACT_EXPORT QDebug operator<<( QDebug a_debug, const PimContactDate& a_date );

} // namespace PimManager::Contacts

Q_DECLARE_METATYPE( PimManager::Contacts::PimContactDate )
