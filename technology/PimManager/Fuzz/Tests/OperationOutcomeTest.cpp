// Each operation is tried with an outcome that holds, and each rule about outcomes is broken once.

#include "OperationOutcome.h"

#include "PimVCardTestLog.h"
#include "PimVCardTestText.h"

namespace PimManager::vCard::Fuzz
{

namespace
{

using Call = PimVCardParserCall;

/// Texts on which each operation succeeds.
struct OperationRow
{
    const char* m_name;
    Call m_call;
    const char* m_text;
    /// The texts of the result, joined by "|".
    const char* m_result;
};

// Found by googletest, which would show the bytes of a row, those between its members included.
void PrintTo( const OperationRow& a_row, std::ostream* a_stream )
{
    *a_stream << a_row.m_name;
}

class OperationOutcomeTest : public testing::TestWithParam<OperationRow>
{
};

OperationOutcome Try( const char* a_text, Call a_call )
{
    const LogCapture log;
    return TryOperation( a_text, a_call );
}

/// An outcome that holds, for a test to spoil.
OperationOutcome GoodLine()
{
    return Try( "N;HOME:a\r\n", Call::ParseProperty );
}

} // namespace

TEST_P( OperationOutcomeTest, GoodTextGivesItsTextsWithoutViolation )
{
    const OperationRow& row = GetParam();
    const OperationOutcome outcome = Try( row.m_text, row.m_call );
    EXPECT_EQ( CheckOutcome( outcome ), Violation() );
    EXPECT_EQ( outcome.m_result.Texts().join( Text( "|" ) ), Text( row.m_result ) );
    EXPECT_TRUE( outcome.m_success.value_or( true ) );
    EXPECT_FALSE( outcome.m_isMarked );
    EXPECT_EQ( outcome.m_prepared, QByteArray( row.m_text ) );
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OperationOutcomeTest,
    testing::Values( OperationRow{ "ParseVCards", Call::ParseVCards, "BEGIN:VCARD\r\ng.N;A=b:c;d\r\nEND:VCARD\r\n",
                                   "g|N|A|b|c|d" },
                     OperationRow{ "ParseVCard", Call::ParseVCard, "BEGIN:VCARD\r\nN:a\r\nEND:VCARD\r\n", "N|a" },
                     OperationRow{ "ParseStart", Call::ParseStart, "BEGIN:VCARD\r\n", "" },
                     OperationRow{ "ParseEnd", Call::ParseEnd, "END:VCARD\r\n", "" },
                     OperationRow{ "ParseProperties", Call::ParseProperties, "N:a\r\nEND:b\r\n", "N|a|END|b" },
                     OperationRow{ "ParseProperty", Call::ParseProperty, "N;HOME:a\r\n", "N|HOME|a" },
                     OperationRow{ "ParseGroup", Call::ParseGroup, "a.b.N:", "a.b" },
                     OperationRow{ "ParseGroupOfBoundary", Call::ParseGroupOfBoundary, "a.N x", "a" },
                     OperationRow{ "ParseParameters", Call::ParseParameters, ";HOME;A=b,c:", "HOME|A|b,c" },
                     OperationRow{ "ParseParametersOfBoundary", Call::ParseParametersOfBoundary, ";HOME: x", "HOME" },
                     OperationRow{ "ParseParameter", Call::ParseParameter, ";A=\"b\":", "A|\"b\"" },
                     OperationRow{ "ParseParameterAtItsEnd", Call::ParseParameter, ":", "" },
                     OperationRow{ "ParseParameterOfBoundary", Call::ParseParameterOfBoundary, " ", "" },
                     OperationRow{ "ParseQuotedParamValue", Call::ParseQuotedParamValue, "a b\"", "a b\"" },
                     OperationRow{ "ParseValues", Call::ParseValues, "a;;b", "a|b" } ),
    NameOf<OperationRow> );

TEST( OperationOutcomeTest, EveryOperationFailsWithoutViolation )
{
    for ( int call = 1; call <= static_cast<int>( s_kLastParserCall ); ++call )
    {
        for ( const char* text : { "", "\x01", ";ENCODING=QUOTED-PRINTABLE;A=\"b", "a=\n", "N;A=,:" } )
            EXPECT_EQ( CheckOutcome( Try( text, static_cast<Call>( call ) ) ), Violation() ) << call << ' ' << text;
    }
}

TEST( OperationOutcomeTest, FailuresAreMarked )
{
    for ( const Call call : { Call::ParseVCard, Call::ParseStart, Call::ParseEnd, Call::ParseProperties,
                              Call::ParseProperty, Call::ParseParameters, Call::ParseQuotedParamValue } )
    {
        const OperationOutcome outcome = Try( "\x01", call );
        EXPECT_EQ( outcome.m_success, std::optional<bool>( false ) ) << static_cast<int>( call );
        EXPECT_TRUE( outcome.m_isMarked ) << static_cast<int>( call );
    }
}

TEST( OperationOutcomeTest, UnmarkedFailureIsReported )
{
    OperationOutcome outcome = GoodLine();
    outcome.m_success = false;
    EXPECT_EQ( CheckOutcome( outcome ), Text( "a failure is marked, and nothing else is" ) );
}

TEST( OperationOutcomeTest, MarkedSuccessIsReported )
{
    OperationOutcome outcome = GoodLine();
    outcome.m_isMarked = true;
    EXPECT_EQ( CheckOutcome( outcome ), Text( "a failure is marked, and nothing else is" ) );
}

TEST( OperationOutcomeTest, RemainingEncodingIsReported )
{
    OperationOutcome outcome = GoodLine();
    outcome.m_hasEncoding = true;
    EXPECT_EQ( CheckOutcome( outcome ), Text( "a parsed line leaves no encoding" ) );
    outcome.m_call = Call::ParseParameters;
    EXPECT_EQ( CheckOutcome( outcome ), Violation() );
}

TEST( OperationOutcomeTest, ChangedTextIsReported )
{
    OperationOutcome outcome = GoodLine();
    outcome.m_preparedAfter.chop( 1 );
    EXPECT_EQ( CheckOutcome( outcome ), Text( "parsing leaves the prepared text as it is" ) );
}

TEST( OperationOutcomeTest, TextFromNowhereIsReported )
{
    OperationOutcome outcome = GoodLine();
    outcome.m_prepared = "N;HOME:b\r\n";
    EXPECT_EQ( CheckOutcome( outcome ), Text( "every text stands in the prepared text, in order: \"a\"" ) );
}

TEST( OperationOutcomeTest, IncompleteResultIsReported )
{
    OperationOutcome outcome = GoodLine();
    outcome.m_result.VisitValues( {} );
    EXPECT_EQ( CheckOutcome( outcome ), Text( "there is at least one value: \"\"" ) );
}

TEST( OperationOutcomeTest, ParseVCardsWithoutListIsReported )
{
    OperationOutcome outcome = Try( "", Call::ParseVCards );
    EXPECT_EQ( CheckOutcome( outcome ), Violation() );
    outcome.m_success = false;
    EXPECT_EQ( CheckOutcome( outcome ), Text( "ParseVCards gives a list" ) );
}

TEST( OperationOutcomeTest, ParseVCardsThatStopsEarlyIsReported )
{
    OperationOutcome outcome = Try( "x", Call::ParseVCards );
    outcome.m_isAtEnd = false;
    EXPECT_EQ( CheckOutcome( outcome ), Text( "ParseVCards reads to the end of the text" ) );
}

TEST( OperationOutcomeTest, MarkLeftByParseVCardsIsReported )
{
    OperationOutcome outcome = Try( "x", Call::ParseVCards );
    EXPECT_EQ( CheckOutcome( outcome ), Violation() );
    outcome.m_isMarked = true;
    EXPECT_EQ( CheckOutcome( outcome ), Text( "ParseVCards leaves no mark" ) );
}

} // namespace PimManager::vCard::Fuzz
