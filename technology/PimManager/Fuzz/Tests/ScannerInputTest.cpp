// How the head of an input becomes a script.

#include "ScannerInput.h"

#include "PimVCardReferenceTexts.h"
#include "PimVCardTestText.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

using Call = PimVCardScannerCall;
using vCard::Text;

QList<Call> CallsOf( const PimVCardScannerScript& a_script )
{
    QList<Call> calls;
    for ( const PimVCardScannerStep& step : a_script.m_steps )
        calls.append( step.m_call );
    return calls;
}

} // namespace

TEST( ScannerInputTest, EmptyInputDoesNothing )
{
    const ScannerInput input = ReadScannerInput( "" );
    EXPECT_TRUE( input.m_script.m_steps.isEmpty() );
    EXPECT_EQ( input.m_text, QByteArray() );
}

TEST( ScannerInputTest, FirstByteHoldsFlagsAndNumberOfSteps )
{
    const QByteArray steps( "000000000000" );
    for ( const bool isOfParser : { false, true } )
    {
        for ( const bool watchesPosition : { false, true } )
        {
            const char head = static_cast<char>( '0' + ( isOfParser ? 1 : 0 ) + ( watchesPosition ? 2 : 0 ) + 4 );
            const QByteArray bytes = head + steps;
            const ScannerInput input = ReadScannerInput( bytes );
            EXPECT_EQ( input.m_script.m_isOfParser, isOfParser );
            EXPECT_EQ( input.m_script.m_watchesPosition, watchesPosition );
            EXPECT_EQ( input.m_script.m_steps.size(), 2 );
            EXPECT_EQ( input.m_text, QByteArray( "000000" ) );
        }
    }
}

TEST( ScannerInputTest, StepsAreReadInOrder )
{
    const ScannerInput input = ReadScannerInput( "D0001001002003004015006007008009001text" );
    const QList<Call> expected = { Call::Run, Call::Single, Call::Single, Call::Seek, Call::Status, Call::Change };
    EXPECT_EQ( CallsOf( input.m_script ), expected );
    EXPECT_EQ( input.m_script.m_steps.first().m_argument, 0 );
    EXPECT_EQ( input.m_script.m_steps.at( 1 ).m_argument, 0 );
}

TEST( ScannerInputTest, StepsShareTheirExpressions )
{
    const PimVCardScannerScript script = ReadScannerInput( "<050000050" ).m_script;
    ASSERT_EQ( script.m_steps.size(), 3 );
    EXPECT_EQ( script.m_steps.at( 0 ).m_expression, script.m_steps.at( 2 ).m_expression );
    EXPECT_NE( script.m_steps.at( 0 ).m_expression, script.m_steps.at( 1 ).m_expression );
    EXPECT_EQ( script.m_expressions.at( 0 ).m_pattern, ScannerExpressions().at( 5 ).m_pattern );
    EXPECT_EQ( script.m_expressions.size(), 2 );
}

TEST( ScannerInputTest, PlaceIsInTheText )
{
    for ( char place = '0'; place < '9'; ++place )
    {
        const QByteArray bytes = QByteArray( "080" ) + place + "abc";
        const ScannerInput input = ReadScannerInput( bytes );
        ASSERT_EQ( CallsOf( input.m_script ), QList<Call>{ Call::GoTo } );
        EXPECT_EQ( input.m_script.m_steps.first().m_argument, ( place - '0' ) % 4 );
    }
}

TEST( ScannerInputTest, ChangedExpressionIsOfTheScript )
{
    const PimVCardScannerScript script = ReadScannerInput( "0405" ).m_script;
    ASSERT_EQ( script.m_expressions.size(), 2 );
    EXPECT_EQ( script.m_steps.first().m_argument, 1 );
    EXPECT_EQ( script.m_expressions.at( 1 ).m_pattern, ScannerExpressions().at( 5 ).m_pattern );
}

TEST( ScannerInputTest, EveryByteIsAScript )
{
    for ( int byte = 0; byte < 256; ++byte )
    {
        const QByteArray bytes( 60, static_cast<char>( byte ) );
        const ScannerInput input = ReadScannerInput( bytes );
        ASSERT_FALSE( input.m_script.m_steps.isEmpty() ) << byte;
        EXPECT_EQ( input.m_text.size(), 59 - 3 * input.m_script.m_steps.size() ) << byte;
        for ( const PimVCardScannerStep& step : input.m_script.m_steps )
            EXPECT_LT( step.m_expression, input.m_script.m_expressions.size() ) << byte;
    }
}

} // namespace PimManager::vCard::Fuzz
