// Every kind of incomplete result is told, and complete ones are not.

#include "ResultVisit.h"

#include "PimVCard.h"
#include "PimVCardTestLog.h"
#include "PimVCardTestText.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

PimVCardProperty* MakeProperty( const QString& a_group, const QString& a_name, const QList<QString>& a_values )
{
    return new PimVCardProperty( a_group, a_name, new QList<PimVCardParameter*>, new QList<QString>( a_values ) );
}

Violation ViolationOf( PimVCardProperty* a_property )
{
    const LogCapture log;
    const PimVCard vCard( new QList<PimVCardProperty*>( { a_property } ) );
    ResultVisit visit;
    visit.Visit( &vCard );
    return visit.FirstViolation();
}

Violation ViolationOf( const char* a_parameterName, const char* a_parameterValue )
{
    const PimVCardParameter parameter( Text( a_parameterName ), Text( a_parameterValue ) );
    ResultVisit visit;
    visit.Visit( &parameter );
    return visit.FirstViolation();
}

Violation ViolationOfValue( const QString& a_value )
{
    ResultVisit visit;
    visit.VisitValues( { a_value } );
    return visit.FirstViolation();
}

} // namespace

TEST( ResultVisitTest, CompleteCardHasNoViolation )
{
    EXPECT_EQ( ViolationOf( MakeProperty( Text( "a.b" ), Text( "X-1" ), { QString(), Text( "v\t\n\u20AC" ) } ) ),
               Violation() );
    EXPECT_EQ( ViolationOf( MakeProperty( QString(), Text( "N" ), { QString() } ) ), Violation() );
}

TEST( ResultVisitTest, NullPointersAreReported )
{
    ResultVisit cards;
    cards.VisitAll( QList<PimVCard*>( { nullptr } ) );
    EXPECT_EQ( cards.FirstViolation(), Text( "no card is null: \"\"" ) );

    ResultVisit parameters;
    parameters.VisitAll( QList<PimVCardParameter*>( { nullptr } ) );
    EXPECT_EQ( parameters.FirstViolation(), Text( "no parameter is null: \"\"" ) );

    EXPECT_EQ( ViolationOf( nullptr ), Text( "no property is null: \"\"" ) );
}

TEST( ResultVisitTest, WrongNamesAreReported )
{
    for ( const char* name : { "", "a b", "a.b", "\u00E9", "a\n" } )
        EXPECT_TRUE( ViolationOf( MakeProperty( QString(), Text( name ), { QString() } ) )
                         .startsWith( Text( "a property has a name" ) ) )
            << name;
}

TEST( ResultVisitTest, EndLineInACardIsReported )
{
    EXPECT_EQ( ViolationOf( MakeProperty( QString(), Text( "eND" ), { QString() } ) ),
               Text( "a card holds no END line: \"END\"" ) );
}

TEST( ResultVisitTest, WrongGroupIsReported )
{
    EXPECT_EQ( ViolationOf( MakeProperty( Text( "a:b" ), Text( "N" ), { QString() } ) ),
               Text( "a group holds names and dots only: \"a:b\"" ) );
}

TEST( ResultVisitTest, PropertyWithoutValueIsReported )
{
    EXPECT_EQ( ViolationOf( MakeProperty( QString(), Text( "N" ), {} ) ), Text( "there is at least one value: \"\"" ) );
}

TEST( ResultVisitTest, WrongParameterOfAPropertyIsReported )
{
    auto* const parameters = new QList<PimVCardParameter*>( { new PimVCardParameter( QString(), QString() ) } );
    EXPECT_EQ(
        ViolationOf( new PimVCardProperty( QString(), Text( "N" ), parameters, new QList<QString>( { QString() } ) ) ),
        Text( "a parameter value is names and quoted texts: \"\"" ) );
}

TEST( ResultVisitTest, ParametersOfTheGrammarHaveNoViolation )
{
    for ( const char* value : { "HOME", "a,b-1", "\"a;, b:\"", "\"a\",b,\"\\\"", "\"\u20AC\"" } )
    {
        EXPECT_EQ( ViolationOf( "", value ), Violation() ) << value;
        EXPECT_EQ( ViolationOf( "TYPE", value ), Violation() ) << value;
    }
}

TEST( ResultVisitTest, OtherParameterValuesAreReported )
{
    for ( const char* value : { "", "\"", "\"\"", "a,", ",a", "a,,b", "\"a", "a\"", "\"a\"b", "a b", "\"\x01\"" } )
        EXPECT_FALSE( ViolationOf( "TYPE", value ).isEmpty() ) << value;
}

TEST( ResultVisitTest, OtherParameterNamesAreReported )
{
    EXPECT_EQ( ViolationOf( "A B", "x" ), Text( "a parameter name holds name characters only: \"A B\"" ) );
}

TEST( ResultVisitTest, ControlCharactersInValuesAreReported )
{
    for ( const int unit : { 0x00, 0x08, 0x0B, 0x0D, 0x1F, 0x7F, 0xFEFF, 0xD800 } )
        EXPECT_FALSE( ViolationOfValue( QString( QChar( unit ) ) ).isEmpty() ) << unit;
    for ( const int unit : { 0x09, 0x0A, 0x20, 0x5C, 0x80, 0xFFFD } )
        EXPECT_EQ( ViolationOfValue( QString( QChar( unit ) ) ), Violation() ) << unit;
}

TEST( ResultVisitTest, QuotedRestMustClose )
{
    for ( const char* text : { "", "a", "\"", "a\"b\"", "a\"\"" } )
    {
        ResultVisit visit;
        visit.VisitQuotedRest( Text( text ) );
        EXPECT_FALSE( visit.FirstViolation().isEmpty() ) << text;
    }
    ResultVisit visit;
    visit.VisitQuotedRest( Text( "a, b\"" ) );
    EXPECT_EQ( visit.FirstViolation(), Violation() );
}

TEST( ResultVisitTest, TextsComeInTheOrderOfTheLine )
{
    const LogCapture log;
    auto* const parameters = new QList<PimVCardParameter*>(
        { new PimVCardParameter( QString(), Text( "HOME" ) ), new PimVCardParameter( Text( "P" ), Text( "q" ) ) } );
    const PimVCardProperty property( Text( "g" ), Text( "TEL" ), parameters,
                                     new QList<QString>( { Text( "1" ), QString(), Text( "2" ) } ) );
    ResultVisit visit;
    visit.Visit( &property );
    const QStringList expected = { Text( "g" ), Text( "TEL" ), Text( "HOME" ), Text( "P" ),
                                   Text( "q" ), Text( "1" ),   Text( "2" ) };
    EXPECT_EQ( visit.Texts(), expected );
}

} // namespace PimManager::vCard::Fuzz
