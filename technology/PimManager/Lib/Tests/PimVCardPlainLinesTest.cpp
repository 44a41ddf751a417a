// BEGIN and END lines in their usual form are read in one step. This step must leave the same state as the others.

#include "PimVCardParser.h"
#include "PimVCardTestReports.h"
#include "PimVCardTestResults.h"
#include "PimVCardVocabulary.h"

#include <gtest/gtest.h>

namespace PimManager::vCard
{

namespace
{

struct EncodingRow
{
    const char* m_parameter;
    bool m_isQuotedPrintable;
    bool m_isBase64;
};

const EncodingRow s_kEncodings[] = {
    { ";ENCODING=QUOTED-PRINTABLE", true, false },
    { ";ENCODING=b", false, true },
};

/// Reads the parameter and the colon after it, so that the line after them is read with this encoding.
void ReadParameter( PimVCardParser& a_parser, const EncodingRow& a_row )
{
    const PimVCardParserInspector inspector( a_parser );
    delete a_parser.ParseParameter( false );
    ASSERT_EQ( a_row.m_isQuotedPrintable, inspector.IsQuotedPrintable() );
    ASSERT_EQ( a_row.m_isBase64, inspector.IsBase64() );
    ASSERT_EQ( s_kColon, inspector.Lexer().GetToken( QRegularExpression( s_kColonPattern ), true ) );
}

} // namespace

TEST( PlainLineTest, BeginLineClearsEncodings )
{
    for ( const EncodingRow& row : s_kEncodings )
    {
        SCOPED_TRACE( row.m_parameter );
        PimVCardParser parser( row.m_parameter + QByteArray( ":BEGIN:VCARD\r\nFN:A\r\n" ) );
        ReadParameter( parser, row );
        EXPECT_TRUE( parser.ParseStart() );
        EXPECT_FALSE( PimVCardParserInspector( parser ).IsQuotedPrintable() );
        EXPECT_FALSE( PimVCardParserInspector( parser ).IsBase64() );
    }
}

TEST( PlainLineTest, EndLineClearsEncodings )
{
    for ( const EncodingRow& row : s_kEncodings )
    {
        SCOPED_TRACE( row.m_parameter );
        PimVCardParser parser( row.m_parameter + QByteArray( ":END:VCARD\r\nFN:A\r\n" ) );
        ReadParameter( parser, row );
        EXPECT_EQ( ( CardData{ { "", "END", {}, { "VCARD" } } } ), Take( parser.ParseProperties() ) );
        EXPECT_FALSE( PimVCardParserInspector( parser ).IsQuotedPrintable() );
        EXPECT_FALSE( PimVCardParserInspector( parser ).IsBase64() );
    }
}

TEST( PlainLineTest, BeginLineOfMarkedParserFails )
{
    const LogCapture log;
    PimVCardParser parser( "FN:A\r\nBEGIN:VCARD\r\nFN:B\r\n" );
    EXPECT_FALSE( parser.ParseStart() );
    EXPECT_FALSE( parser.ParseStart() );
    const std::vector<Report> reports = ReportsOf( log );
    ASSERT_EQ( 3U, reports.size() );
    EXPECT_EQ( ( Report{ "ParseProperty()", "Expected property GROUP/NAME token..." } ), reports[1] );
    EXPECT_EQ( ( Report{ "ParseStart()", "Could not parse BEGIN property..." } ), reports[2] );
}

TEST( PlainLineTest, EndLineOfMarkedParserFails )
{
    const LogCapture log;
    PimVCardParser parser( "FN:A\r\nEND:VCARD\r\nFN:B\r\n" );
    EXPECT_FALSE( parser.ParseStart() );
    EXPECT_EQ( nullptr, parser.ParseProperties() );
    EXPECT_EQ( ( Report{ "ParseProperties()", "Could not parse property..." } ), ReportsOf( log ).back() );
}

} // namespace PimManager::vCard
