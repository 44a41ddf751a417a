#include <PimManager/Contacts/PimContactDate.h>

#include "Contact/DatePrivate.h"
#include "Contact/DateText.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

#include <QDebug>
#include <QStringList>

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

DateFields FieldsOfDate( const QDate& a_date )
{
    DateFields fields;
    if ( !a_date.isValid() )
        return fields;
    fields.m_year = a_date.year();
    fields.m_month = a_date.month();
    fields.m_day = a_date.day();
    return fields;
}

DateFields FieldsOfTime( const QDateTime& a_time )
{
    if ( a_time.offsetFromUtc() % 60 != 0 && a_time.timeSpec() != Qt::LocalTime )
        return FieldsOfTime( a_time.toUTC() );
    DateFields fields = FieldsOfDate( a_time.date() );
    if ( !a_time.isValid() )
        return fields;
    fields.m_hour = a_time.time().hour();
    fields.m_minute = a_time.time().minute();
    fields.m_second = a_time.time().second();
    if ( a_time.timeSpec() != Qt::LocalTime )
        fields.m_offset = a_time.offsetFromUtc() / 60;
    return fields;
}

QVariant ValueOf( const std::optional<int>& a_part )
{
    return a_part ? QVariant( *a_part ) : QVariant();
}

} // namespace

const PimContactDatePrivate& PimContactDatePrivate::Of( const PimContactDate& a_date )
{
    static const PimContactDatePrivate s_null{ DateFields() };
    return a_date.d != nullptr ? *a_date.d : s_null;
}

PimContactDate PimContactDatePrivate::Read( std::string_view a_text, DateHint a_hint,
                                            const std::optional<int>& a_omittedYear )
{
    if ( const std::optional<DateFields> fields = ReadDate( a_text, a_hint, a_omittedYear ) )
        return PimContactDate( new PimContactDatePrivate( *fields ) );
    const std::string_view text = WithoutOuterSpace( a_text );
    return text.empty() ? PimContactDate() : PimContactDate( new PimContactDatePrivate( StringOf( text ) ) );
}

PimContactDate PimContactDatePrivate::Make( const DateFields& a_fields )
{
    return a_fields.IsValid() ? PimContactDate( new PimContactDatePrivate( a_fields ) ) : PimContactDate();
}

PimContactDate::PimContactDate() = default;

PimContactDate::PimContactDate( const QDate& a_date ) :
    PimContactDate( PimContactDatePrivate::Make( FieldsOfDate( a_date ) ) )
{
}

PimContactDate::PimContactDate( const QDateTime& a_time ) :
    PimContactDate( PimContactDatePrivate::Make( FieldsOfTime( a_time ) ) )
{
}

PimContactDate::PimContactDate( PimContactDatePrivate* a_private ) :
    d( a_private )
{
}

PimContactDate::PimContactDate( const PimContactDate& a_other ) = default;
PimContactDate& PimContactDate::operator=( const PimContactDate& a_other ) = default;
PimContactDate::~PimContactDate() = default;

PimContactDate PimContactDate::FromParts( std::optional<int> a_year, std::optional<int> a_month,
                                          std::optional<int> a_day, std::optional<int> a_hour,
                                          std::optional<int> a_minute, std::optional<int> a_second,
                                          std::optional<int> a_offset )
{
    return PimContactDatePrivate::Make( { a_year, a_month, a_day, a_hour, a_minute, a_second, a_offset } );
}

PimContactDate PimContactDate::FromText( const QString& a_text )
{
    return PimContactDatePrivate::Read( ViewOf( a_text.toUtf8() ) );
}

bool PimContactDate::IsNull() const
{
    return !IsDate() && !HasTime() && !IsText();
}

bool PimContactDate::IsDate() const
{
    return PimContactDatePrivate::FieldsOf( *this ).HasDate();
}

bool PimContactDate::HasTime() const
{
    return PimContactDatePrivate::FieldsOf( *this ).HasTime();
}

bool PimContactDate::IsText() const
{
    return !PimContactDatePrivate::Of( *this ).m_text.isEmpty();
}

std::optional<int> PimContactDate::Year() const
{
    return PimContactDatePrivate::FieldsOf( *this ).m_year;
}

std::optional<int> PimContactDate::Month() const
{
    return PimContactDatePrivate::FieldsOf( *this ).m_month;
}

std::optional<int> PimContactDate::Day() const
{
    return PimContactDatePrivate::FieldsOf( *this ).m_day;
}

std::optional<int> PimContactDate::Hour() const
{
    return PimContactDatePrivate::FieldsOf( *this ).m_hour;
}

std::optional<int> PimContactDate::Minute() const
{
    return PimContactDatePrivate::FieldsOf( *this ).m_minute;
}

std::optional<int> PimContactDate::Second() const
{
    return PimContactDatePrivate::FieldsOf( *this ).m_second;
}

std::optional<int> PimContactDate::Offset() const
{
    return PimContactDatePrivate::FieldsOf( *this ).m_offset;
}

bool PimContactDate::IsUtc() const
{
    return Offset() == 0;
}

QString PimContactDate::Text() const
{
    return PimContactDatePrivate::Of( *this ).m_text;
}

QDate PimContactDate::Date() const
{
    const DateFields& fields = PimContactDatePrivate::FieldsOf( *this );
    const bool isWhole = fields.m_year && fields.m_month && fields.m_day;
    return isWhole ? QDate( *fields.m_year, *fields.m_month, *fields.m_day ) : QDate();
}

QTime PimContactDate::Time() const
{
    const DateFields& fields = PimContactDatePrivate::FieldsOf( *this );
    const int second = std::min( fields.m_second.value_or( 0 ), 59 );
    return fields.m_hour && fields.m_minute ? QTime( *fields.m_hour, *fields.m_minute, second ) : QTime();
}

QDateTime PimContactDate::DateTime() const
{
    const QDate date = Date();
    const QTime time = Time();
    if ( !date.isValid() || !time.isValid() )
        return QDateTime();
    if ( !Offset() )
        return QDateTime( date, time );
    return IsUtc() ? QDateTime( date, time, Qt::UTC ) : QDateTime( date, time, Qt::OffsetFromUTC, *Offset() * 60 );
}

QString PimContactDate::ToString() const
{
    return IsText() ? PimContactDatePrivate::Of( *this ).m_text
                    : StringOf( DateText( PimContactDatePrivate::FieldsOf( *this ), DateFormat::Extended ).Text() );
}

bool PimContactDate::operator==( const PimContactDate& a_other ) const
{
    return d == a_other.d ||
           ( PimContactDatePrivate::FieldsOf( *this ) == PimContactDatePrivate::FieldsOf( a_other ) &&
             PimContactDatePrivate::Of( *this ).m_text == PimContactDatePrivate::Of( a_other ).m_text );
}

bool PimContactDate::operator!=( const PimContactDate& a_other ) const
{
    return !( *this == a_other );
}

QVariant PimContactDate::YearValue() const
{
    return ValueOf( Year() );
}

QVariant PimContactDate::MonthValue() const
{
    return ValueOf( Month() );
}

QVariant PimContactDate::DayValue() const
{
    return ValueOf( Day() );
}

QVariant PimContactDate::HourValue() const
{
    return ValueOf( Hour() );
}

QVariant PimContactDate::MinuteValue() const
{
    return ValueOf( Minute() );
}

QVariant PimContactDate::SecondValue() const
{
    return ValueOf( Second() );
}

QVariant PimContactDate::OffsetValue() const
{
    return ValueOf( Offset() );
}

QDebug operator<<( QDebug a_debug, const PimContactDate& a_date )
{
    QStringList known;
    const auto add = [&known]( bool a_isKnown, const QString& a_name )
    {
        if ( a_isKnown )
            known.append( a_name );
    };
    add( a_date.Year().has_value(), QStringLiteral( "year" ) );
    add( a_date.Month().has_value(), QStringLiteral( "month" ) );
    add( a_date.Day().has_value(), QStringLiteral( "day" ) );
    add( a_date.Hour().has_value(), QStringLiteral( "hour" ) );
    add( a_date.Minute().has_value(), QStringLiteral( "minute" ) );
    add( a_date.Second().has_value(), QStringLiteral( "second" ) );
    add( a_date.Offset().has_value(), QStringLiteral( "offset" ) );
    add( a_date.IsText(), QStringLiteral( "text" ) );
    const QDebugStateSaver saver( a_debug );
    a_debug.nospace().noquote() << "PimContactDate(" << known.join( QLatin1Char( ' ' ) ) << ')';
    return a_debug;
}

} // namespace PimManager::Contacts
