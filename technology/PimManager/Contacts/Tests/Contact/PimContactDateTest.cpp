#include <PimManager/Contacts/PimContactDate.h>

#include "Contact/DatePrivate.h"

#include <QDebug>
#include <QMetaObject>
#include <QMetaProperty>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <array>
#include <ostream>

namespace PimManager::Contacts
{

void PrintTo( const PimContactDate& a_date, std::ostream* a_stream )
{
    *a_stream << a_date.ToString().toStdString();
}

namespace
{

constexpr std::nullopt_t s_kOpen = std::nullopt;

PimContactDate DateOf( const char* a_text )
{
    return PimContactDate::FromText( QString::fromUtf8( a_text ) );
}

std::string TextOf( const PimContactDate& a_date )
{
    return a_date.ToString().toStdString();
}

std::string LogOf( const PimContactDate& a_date )
{
    QString text;
    QDebug( &text ).nospace() << a_date;
    return text.toStdString();
}

/// Reads a property in the way that QML does.
QVariant PropertyOf( const PimContactDate& a_date, const char* a_name )
{
    const QMetaObject& meta = PimContactDate::staticMetaObject;
    return meta.property( meta.indexOfProperty( a_name ) ).readOnGadget( &a_date );
}

struct Row
{
    const char* m_text;
    const char* m_result;
};

constexpr std::array s_kTexts = {
    Row{ "19850412", "1985-04-12" },
    Row{ "1985-4-2", "1985-04-02" },
    Row{ "--0412", "--04-12" },
    Row{ "1985-04", "1985-04" },
    Row{ "---12", "---12" },
    Row{ "T102200", "T10:22:00" },
    Row{ "19850412T102200Z", "1985-04-12T10:22:00Z" },
    Row{ "1996-10-22T14:00:00.5+02:00", "1996-10-22T14:00:00+02:00" },
    Row{ " circa 1800 ", "circa 1800" },
    Row{ "12.04.1985", "12.04.1985" },
    Row{ "0000-00-00", "0000-00-00" },
    Row{ "um 1800, Fr\xC3\xBChjahr", "um 1800, Fr\xC3\xBChjahr" },
    Row{ "", "" },
};

} // namespace

TEST( PimContactDateTest, DefaultIsNull )
{
    const PimContactDate date;
    EXPECT_TRUE( date.IsNull() );
    EXPECT_FALSE( date.IsDate() );
    EXPECT_FALSE( date.HasTime() );
    EXPECT_FALSE( date.IsText() );
    EXPECT_EQ( date.ToString(), QString() );
    EXPECT_FALSE( date.Date().isValid() );
    EXPECT_FALSE( date.Time().isValid() );
    EXPECT_FALSE( date.DateTime().isValid() );
    EXPECT_EQ( date, PimContactDate() );
}

TEST( PimContactDateTest, ToStringHasTheExtendedFormatOrTheText )
{
    for ( const Row& row : s_kTexts )
        EXPECT_EQ( TextOf( DateOf( row.m_text ) ), row.m_result ) << row.m_text;
}

TEST( PimContactDateTest, ToStringIsReadBackAsTheSameDate )
{
    for ( const Row& row : s_kTexts )
        EXPECT_EQ( PimContactDate::FromText( DateOf( row.m_text ).ToString() ), DateOf( row.m_text ) ) << row.m_text;
}

TEST( PimContactDateTest, TextThatIsNoDateIsKept )
{
    const PimContactDate date = DateOf( "\tcirca 1800\n" );
    EXPECT_TRUE( date.IsText() );
    EXPECT_EQ( date.Text(), QStringLiteral( "circa 1800" ) );
    EXPECT_FALSE( date.IsNull() );
    EXPECT_FALSE( date.IsDate() );
    EXPECT_FALSE( date.HasTime() );
    EXPECT_FALSE( date.Date().isValid() );
}

TEST( PimContactDateTest, DateHasNoText )
{
    const PimContactDate date = DateOf( "1985-04-12" );
    EXPECT_FALSE( date.IsText() );
    EXPECT_EQ( date.Text(), QString() );
}

TEST( PimContactDateTest, WhiteSpaceIsNull )
{
    EXPECT_TRUE( DateOf( " \r\n\xC2\xA0" ).IsNull() );
}

TEST( PimContactDateTest, PartsAreKnownOrOpen )
{
    const PimContactDate date = DateOf( "--04-12T10:22-08:00" );
    EXPECT_EQ( date.Year(), s_kOpen );
    EXPECT_EQ( date.Month(), 4 );
    EXPECT_EQ( date.Day(), 12 );
    EXPECT_EQ( date.Hour(), 10 );
    EXPECT_EQ( date.Minute(), 22 );
    EXPECT_EQ( date.Second(), s_kOpen );
    EXPECT_EQ( date.Offset(), -480 );
    EXPECT_FALSE( date.IsUtc() );
    EXPECT_TRUE( date.IsDate() );
    EXPECT_TRUE( date.HasTime() );
}

TEST( PimContactDateTest, YearAndSecondAreParts )
{
    EXPECT_EQ( DateOf( "1985" ).Year(), 1985 );
    EXPECT_EQ( DateOf( "T--07" ).Second(), 7 );
    EXPECT_TRUE( DateOf( "1985" ).IsDate() );
    EXPECT_TRUE( DateOf( "---12" ).IsDate() );
    EXPECT_TRUE( DateOf( "T--07" ).HasTime() );
    EXPECT_FALSE( DateOf( "T--07" ).IsDate() );
}

TEST( PimContactDateTest, OffsetOfZeroIsUtc )
{
    EXPECT_TRUE( DateOf( "T10:22Z" ).IsUtc() );
    EXPECT_TRUE( DateOf( "T10:22+00:00" ).IsUtc() );
    EXPECT_FALSE( DateOf( "T10:22" ).IsUtc() );
    EXPECT_FALSE( DateOf( "T10:22+01:00" ).IsUtc() );
}

TEST( PimContactDateTest, FromPartsMakesADate )
{
    EXPECT_EQ( TextOf( PimContactDate::FromParts( 1985, 4, 12 ) ), "1985-04-12" );
    EXPECT_EQ( TextOf( PimContactDate::FromParts( {}, 4, 12 ) ), "--04-12" );
    EXPECT_EQ( TextOf( PimContactDate::FromParts( 1985 ) ), "1985" );
    EXPECT_EQ( TextOf( PimContactDate::FromParts( {}, {}, {}, 10, 22, {}, 0 ) ), "T10:22Z" );
    EXPECT_EQ( TextOf( PimContactDate::FromParts( 1985, 4, 12, 10, 22, 7, -90 ) ), "1985-04-12T10:22:07-01:30" );
}

TEST( PimContactDateTest, FromPartsRefusesWhatIsNoDate )
{
    EXPECT_TRUE( PimContactDate::FromParts( {} ).IsNull() );
    EXPECT_TRUE( PimContactDate::FromParts( 1985, 2, 29 ).IsNull() );
    EXPECT_TRUE( PimContactDate::FromParts( 1985, {}, 12 ).IsNull() );
    EXPECT_TRUE( PimContactDate::FromParts( 1985, 4, {}, 10 ).IsNull() );
    EXPECT_TRUE( PimContactDate::FromParts( 1985, 4, 12, {}, {}, {}, 0 ).IsNull() );
}

TEST( PimContactDateTest, QDateIsConverted )
{
    const PimContactDate date( QDate( 1985, 4, 12 ) );
    EXPECT_EQ( TextOf( date ), "1985-04-12" );
    EXPECT_EQ( date.Date(), QDate( 1985, 4, 12 ) );
}

TEST( PimContactDateTest, QDateThatHasNoFormIsNull )
{
    EXPECT_TRUE( PimContactDate( QDate() ).IsNull() );
    EXPECT_TRUE( PimContactDate( QDate( 10000, 1, 1 ) ).IsNull() );
    EXPECT_TRUE( PimContactDate( QDate( -1, 1, 1 ) ).IsNull() );
    EXPECT_TRUE( PimContactDate( QDateTime() ).IsNull() );
}

TEST( PimContactDateTest, QDateTimeIsConverted )
{
    const QDate date( 1985, 4, 12 );
    const QTime time( 10, 22, 7, 999 );
    EXPECT_EQ( TextOf( PimContactDate( QDateTime( date, time ) ) ), "1985-04-12T10:22:07" );
    EXPECT_EQ( TextOf( PimContactDate( QDateTime( date, time, Qt::UTC ) ) ), "1985-04-12T10:22:07Z" );
    EXPECT_EQ( TextOf( PimContactDate( QDateTime( date, time, Qt::OffsetFromUTC, 19800 ) ) ),
               "1985-04-12T10:22:07+05:30" );
    EXPECT_EQ( TextOf( PimContactDate( QDateTime( date, time, QTimeZone( -3600 ) ) ) ), "1985-04-12T10:22:07-01:00" );
}

TEST( PimContactDateTest, OffsetWithSecondsIsConvertedToUtc )
{
    const QDateTime time( QDate( 1985, 4, 12 ), QTime( 10, 22, 7 ), Qt::OffsetFromUTC, 3607 );
    EXPECT_EQ( TextOf( PimContactDate( time ) ), "1985-04-12T09:22:00Z" );
}

TEST( PimContactDateTest, QDateNeedsAllItsParts )
{
    for ( const char* const text : { "1985", "1985-04", "--04-12", "---12", "T10:22", "circa 1800" } )
        EXPECT_TRUE( DateOf( text ).Date().isNull() ) << text;
    EXPECT_EQ( DateOf( "1985-04-12T10" ).Date(), QDate( 1985, 4, 12 ) );
}

TEST( PimContactDateTest, QTimeNeedsHourAndMinute )
{
    for ( const char* const text : { "1985-04-12", "T10", "T-22", "T--00", "circa 1800" } )
        EXPECT_TRUE( DateOf( text ).Time().isNull() ) << text;
    EXPECT_EQ( DateOf( "T10:22" ).Time(), QTime( 10, 22 ) );
    EXPECT_EQ( DateOf( "T10:22:07" ).Time(), QTime( 10, 22, 7 ) );
    EXPECT_EQ( DateOf( "T23:59:60" ).Time(), QTime( 23, 59, 59 ) );
}

TEST( PimContactDateTest, QDateTimeIsReadBack )
{
    const QDate date( 1985, 4, 12 );
    const QTime time( 10, 22, 7 );
    for ( const QDateTime& value :
          { QDateTime( date, time ), QDateTime( date, time, Qt::UTC ),
            QDateTime( date, time, Qt::OffsetFromUTC, 19800 ), QDateTime( date, time, Qt::OffsetFromUTC, -43200 ) } )
    {
        const QDateTime result = PimContactDate( value ).DateTime();
        EXPECT_EQ( result, value ) << value.toString( Qt::ISODate ).toStdString();
        EXPECT_EQ( result.timeSpec(), value.timeSpec() ) << value.toString( Qt::ISODate ).toStdString();
    }
}

TEST( PimContactDateTest, QDateTimeNeedsDateAndTime )
{
    for ( const char* const text : { "1985-04-12", "--04-12T10:22", "1985-04-12T10", "T10:22Z", "circa 1800" } )
        EXPECT_TRUE( DateOf( text ).DateTime().isNull() ) << text;
}

TEST( PimContactDateTest, EachPartCountsInComparisons )
{
    const PimContactDate date = PimContactDate::FromParts( 1985, 4, 12, 10, 22, 0, 0 );
    EXPECT_EQ( date, DateOf( "1985-04-12 10:22:00Z" ) );
    for ( const char* const text :
          { "1986-04-12T10:22:00Z", "1985-05-12T10:22:00Z", "1985-04-13T10:22:00Z", "1985-04-12T11:22:00Z",
            "1985-04-12T10:23:00Z", "1985-04-12T10:22:01Z", "1985-04-12T10:22:00+01:00", "1985-04-12T10:22:00",
            "1985-04-12T10:22Z", "--04-12T10:22:00Z", "1985-04-12", "soon", "" } )
        EXPECT_NE( date, DateOf( text ) ) << text;
}

TEST( PimContactDateTest, TextsAreCompared )
{
    EXPECT_EQ( DateOf( "circa 1800" ), DateOf( " circa 1800" ) );
    EXPECT_NE( DateOf( "circa 1800" ), DateOf( "circa 1801" ) );
    EXPECT_NE( DateOf( "circa 1800" ), PimContactDate() );
}

TEST( PimContactDateTest, CopyIsEqual )
{
    const PimContactDate date = DateOf( "1985-04-12" );
    PimContactDate copy( date );
    EXPECT_EQ( copy, date );
    copy = DateOf( "1985" );
    EXPECT_NE( copy, date );
    EXPECT_EQ( TextOf( date ), "1985-04-12" );
}

TEST( PimContactDateTest, DebugOutputNamesThePartsAndHidesTheValues )
{
    EXPECT_EQ( LogOf( DateOf( "1985-04-12" ) ), "PimContactDate(year month day)" );
    EXPECT_EQ( LogOf( DateOf( "--04-12T10:22:00Z" ) ), "PimContactDate(month day hour minute second offset)" );
    EXPECT_EQ( LogOf( DateOf( "circa 1800" ) ), "PimContactDate(text)" );
    EXPECT_EQ( LogOf( PimContactDate() ), "PimContactDate()" );
}

TEST( PimContactDateTest, KnownPartsAreProperties )
{
    const PimContactDate date = DateOf( "1985-04-12T10:22:07-08:00" );
    EXPECT_EQ( PropertyOf( date, "year" ), QVariant( 1985 ) );
    EXPECT_EQ( PropertyOf( date, "month" ), QVariant( 4 ) );
    EXPECT_EQ( PropertyOf( date, "day" ), QVariant( 12 ) );
    EXPECT_EQ( PropertyOf( date, "hour" ), QVariant( 10 ) );
    EXPECT_EQ( PropertyOf( date, "minute" ), QVariant( 22 ) );
    EXPECT_EQ( PropertyOf( date, "second" ), QVariant( 7 ) );
    EXPECT_EQ( PropertyOf( date, "offset" ), QVariant( -480 ) );
    EXPECT_EQ( PropertyOf( date, "isUtc" ), QVariant( false ) );
    EXPECT_EQ( PropertyOf( date, "isNull" ), QVariant( false ) );
    EXPECT_EQ( PropertyOf( date, "isDate" ), QVariant( true ) );
    EXPECT_EQ( PropertyOf( date, "hasTime" ), QVariant( true ) );
    EXPECT_EQ( PropertyOf( date, "isText" ), QVariant( false ) );
    EXPECT_EQ( PropertyOf( date, "text" ), QVariant( QString() ) );
}

TEST( PimContactDateTest, OpenPartsAreInvalidVariants )
{
    const PimContactDate date = DateOf( "circa 1800" );
    for ( const char* const name : { "year", "month", "day", "hour", "minute", "second", "offset" } )
    {
        ASSERT_GE( PimContactDate::staticMetaObject.indexOfProperty( name ), 0 ) << name;
        EXPECT_FALSE( PropertyOf( date, name ).isValid() ) << name;
    }
    EXPECT_EQ( PropertyOf( date, "isText" ), QVariant( true ) );
    EXPECT_EQ( PropertyOf( date, "text" ), QVariant( QStringLiteral( "circa 1800" ) ) );
}

TEST( PimContactDateTest, ToStringCanBeInvoked )
{
    PimContactDate date = DateOf( "19850412" );
    const QMetaObject& meta = PimContactDate::staticMetaObject;
    QString text;
    ASSERT_TRUE(
        meta.method( meta.indexOfMethod( "ToString()" ) ).invokeOnGadget( &date, Q_RETURN_ARG( QString, text ) ) );
    EXPECT_EQ( text, QStringLiteral( "1985-04-12" ) );
}

TEST( PimContactDateTest, VariantHoldsADate )
{
    const QVariant variant = QVariant::fromValue( DateOf( "1985-04-12" ) );
    EXPECT_EQ( variant.value<PimContactDate>(), DateOf( "1985-04-12" ) );
}

TEST( PimContactDateTest, ValueOfALineIsReadByItsHint )
{
    EXPECT_EQ( TextOf( PimContactDatePrivate::Read( "1022" ) ), "1022" );
    EXPECT_EQ( TextOf( PimContactDatePrivate::Read( "1022", DateHint::Time ) ), "T10:22" );
    EXPECT_EQ( PimContactDatePrivate::Read( "1022", DateHint::Text ).Text(), QStringLiteral( "1022" ) );
    EXPECT_EQ( TextOf( PimContactDatePrivate::Read( "1604-04-12", DateHint::Any, 1604 ) ), "--04-12" );
    EXPECT_EQ( PimContactDatePrivate::Read( "1604", DateHint::Any, 1604 ).Text(), QStringLiteral( "1604" ) );
}

TEST( PimContactDateTest, FieldsOfADateAreItsParts )
{
    const DateFields fields{ s_kOpen, 4, 12, s_kOpen, s_kOpen, s_kOpen, s_kOpen };
    EXPECT_TRUE( PimContactDatePrivate::FieldsOf( DateOf( "--04-12" ) ) == fields );
    EXPECT_TRUE( PimContactDatePrivate::FieldsOf( DateOf( "circa 1800" ) ) == DateFields() );
}

} // namespace PimManager::Contacts
