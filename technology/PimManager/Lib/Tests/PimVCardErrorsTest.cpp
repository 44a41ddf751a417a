#include "PimVCardParser.h"
#include "PimVCardTestReports.h"
#include "PimVCardTestResults.h"
#include "PimVCardVocabulary.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace PimManager::vCard
{

// Reports by operation

namespace
{

void RunVCards( PimVCardParser& a_parser )
{
    Take( a_parser.ParseVCards() );
}

void RunVCard( PimVCardParser& a_parser )
{
    EXPECT_EQ( std::nullopt, Take( a_parser.ParseVCard() ) );
}

void RunStart( PimVCardParser& a_parser )
{
    EXPECT_FALSE( a_parser.ParseStart() );
}

void RunEnd( PimVCardParser& a_parser )
{
    const std::unique_ptr<PimVCardProperty> property( a_parser.ParseProperty() );
    EXPECT_FALSE( a_parser.ParseEnd( property.get() ) );
}

void RunEndOfNothing( PimVCardParser& a_parser )
{
    EXPECT_FALSE( a_parser.ParseEnd( nullptr ) );
}

void RunProperties( PimVCardParser& a_parser )
{
    EXPECT_EQ( std::nullopt, Take( a_parser.ParseProperties() ) );
}

void RunProperty( PimVCardParser& a_parser )
{
    EXPECT_EQ( std::nullopt, Take( a_parser.ParseProperty() ) );
}

void RunGroup( PimVCardParser& a_parser )
{
    bool isBoundary = false;
    EXPECT_EQ( QString(), a_parser.ParseGroup( isBoundary ) );
}

void RunParameters( PimVCardParser& a_parser )
{
    EXPECT_EQ( std::nullopt, Take( a_parser.ParseParameters( false ) ) );
}

void RunParameter( PimVCardParser& a_parser )
{
    EXPECT_EQ( std::nullopt, Take( a_parser.ParseParameter( false ) ) );
}

void RunQuotedParamValue( PimVCardParser& a_parser )
{
    EXPECT_EQ( QString(), a_parser.ParseQuotedParamValue() );
}

/// The values of a QUOTED-PRINTABLE line. The text begins with the parameters.
void RunValues( PimVCardParser& a_parser )
{
    Take( a_parser.ParseParameters( false ) );
    PimVCardParserInspector( a_parser ).Lexer().GetToken( QRegularExpression( s_kColonPattern ), true );
    EXPECT_EQ( std::nullopt, Take( a_parser.ParseValues() ) );
}

const std::string s_kCrlfRegex = R"("\\A\\R\\z")";
const std::string s_kColonRegex = R"("\\A:\\z")";
const std::string s_kNameRegex = R"("\\A[a-zA-Z0-9\\-]+\\z")";

const Report s_kGroupIllegalBlank{ "ParseGroup()", "Found illegal character...", "", "' '" };
const Report s_kGroupIllegalEnd{ "ParseGroup()", "Found illegal character...", "", R"('\x0')" };
const Report s_kPropertyGroup{ "ParseProperty()", "Expected property GROUP/NAME token..." };
const Report s_kPropertyName{ "ParseProperty()", "Expected property NAME token..." };
const Report s_kPropertyParameters{ "ParseProperty()", "Expected PARAMETERS list to be non-null..." };
const Report s_kPropertyColon{ "ParseProperty()", "Expected COLON token...", s_kColonRegex };
const Report s_kPropertyValues{ "ParseProperty()", "Expected VALUES list to be non-null..." };
const Report s_kPropertyCrlf{ "ParseProperty()", "Expected CRLF token...", s_kCrlfRegex };
const Report s_kValuesCrlf{ "ParseValues()", "Expected CRLF token...", s_kCrlfRegex };
const Report s_kParameters{ "ParseParameters()", "Could not parse PARAMETER..." };
const Report s_kParameterColon{ "ParseParameter()", "Expected COLON character...", "", "'x'" };
const Report s_kParameterName{ "ParseParameter()", "Expected PARAM NAME/VALUE token...", s_kNameRegex };
const Report s_kParameterValue{ "ParseParameter()", "Expected PARAM VALUE token...", s_kNameRegex };
const Report s_kParameterElement{ "ParseParameter()", "Expected PARAM VALUE token..." };
const Report s_kParameterEnd{ "ParseParameter()", "Expected COLON/SEMICOLON character...", "", "'='" };
const Report s_kParameterBoth{ "ParseParameter()", "Properties cannot be encoded as both QUOTED-PRINTABLE and BASE64" };
const Report s_kQuotedText{ "ParseQuotedParamValue()", "Expected QUOTED PARAM VALUE token..." };
const Report s_kQuotedEnd{ "ParseQuotedParamValue()", "Expected DQUOTE token..." };
const Report s_kProperties{ "ParseProperties()", "Could not parse property..." };
const Report s_kStart{ "ParseStart()", "Could not parse BEGIN property..." };
const Report s_kStartShown{ "ParseStart()", "Could not parse BEGIN property...", "", "", true };
const Report s_kEndLine{ "ParseEnd()", "Could not parse END property..." };
const Report s_kEndLineShown{ "ParseEnd()", "Could not parse END property...", "", "", true };
const Report s_kVCardStart{ "ParseVCard()", "Could not parse BEGIN property..." };
const Report s_kVCardProperties{ "ParseVCard()", "Could not parse properties..." };
const Report s_kVCardEnd{ "ParseVCard()", "Could not parse END property..." };
const Report s_kVCards{ "ParseVCards()", "Could not parse vCard..." };

struct Row
{
    const char* m_name;
    void ( *m_run )( PimVCardParser& );
    const char* m_text;
    std::vector<Report> m_reports;
};

const std::vector<Row> s_kRows = {
    { "illegal character", RunGroup, "FN :a\r\n", { s_kGroupIllegalBlank } },
    { "nothing where a parameter is due", RunParameter, "x", { s_kParameterColon } },
    { "no parameter name", RunParameter, ";:", { s_kParameterName } },
    { "no parameter value", RunParameter, ";a=:", { s_kParameterValue } },
    { "no list element", RunParameter, ";a=b,:", { s_kParameterElement } },
    { "bad end of a parameter", RunParameter, ";a=b=", { s_kParameterEnd } },
    { "both encodings", RunParameter, ";ENCODING=QUOTED-PRINTABLE,BASE64:", { s_kParameterBoth } },
    { "parameters", RunParameters, ";a;b;:", { s_kParameterName, s_kParameters } },
    { "empty quotes", RunQuotedParamValue, "\"", { s_kQuotedText } },
    { "open quotes", RunQuotedParamValue, "a", { s_kQuotedEnd } },
    { "soft line break", RunValues, ";ENCODING=QUOTED-PRINTABLE:a=", { s_kValuesCrlf } },
    { "property, group", RunProperty, "FN :a\r\n", { s_kGroupIllegalBlank, s_kPropertyGroup } },
    { "property, name", RunProperty, ":a\r\n", { s_kPropertyName } },
    { "property, parameters", RunProperty, "FN;:a\r\n", { s_kParameterName, s_kParameters, s_kPropertyParameters } },
    { "property, quotes",
      RunProperty,
      "FN;a=b,\"\"=:c\r\n",
      { s_kQuotedText, s_kParameterElement, s_kParameters, s_kPropertyParameters } },
    { "property, colon", RunProperty, "BEGIN VCARD\r\n", { s_kPropertyColon } },
    { "property, values", RunProperty, "N;ENCODING=QUOTED-PRINTABLE:a=\r\n\r\n", { s_kValuesCrlf, s_kPropertyValues } },
    { "property, line end", RunProperty, "FN:a", { s_kPropertyCrlf } },
    { "property list", RunProperties, "FN:a\r\nTEL", { s_kGroupIllegalEnd, s_kPropertyGroup, s_kProperties } },
    { "start, no line", RunStart, "", { s_kGroupIllegalEnd, s_kPropertyGroup, s_kStart } },
    { "start, other line", RunStart, "FN:a\r\n", { s_kStartShown } },
    { "end, no line", RunEndOfNothing, "", { s_kEndLine } },
    { "end, other line", RunEnd, "FN:a\r\n", { s_kEndLineShown } },
    { "end, bad line", RunEnd, "FN:a", { s_kPropertyCrlf, s_kEndLine } },
    { "card, start", RunVCard, "FN:a\r\n", { s_kStartShown, s_kVCardStart } },
    { "card, line", RunVCard, "BEGIN:VCARD\r\n:a\r\n", { s_kPropertyName, s_kProperties, s_kVCardProperties } },
    { "card, end", RunVCard, "BEGIN:VCARD\r\nEND:x\r\n", { s_kEndLineShown, s_kVCardEnd } },
    { "cards, start", RunVCards, "BEGIN:VCARD;\r\n", { s_kStartShown, s_kVCardStart, s_kVCards } },
    { "cards, bad start", RunVCards, "BEGIN VCARD\r\n", { s_kPropertyColon, s_kStart, s_kVCardStart, s_kVCards } },
    { "cards, line",
      RunVCards,
      "BEGIN:VCARD\r\nFN:a\r\nTEL;:1\r\nEND:VCARD\r\n",
      { s_kParameterName, s_kParameters, s_kPropertyParameters, s_kProperties, s_kVCardProperties, s_kVCards } },
    { "cards, end", RunVCards, "BEGIN:VCARD\r\nEND:VCARD;\r\n", { s_kEndLineShown, s_kVCardEnd, s_kVCards } },
    { "cards, no end",
      RunVCards,
      "BEGIN:VCARD\r\nFN:a\r\n",
      { s_kGroupIllegalEnd, s_kPropertyGroup, s_kProperties, s_kVCardProperties, s_kVCards } },
};

} // namespace

TEST( ErrorsTest, EachLevelReportsOnceInnermostFirst )
{
    for ( const Row& row : s_kRows )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        row.m_run( parser );
        EXPECT_EQ( row.m_reports, ReportsOf( log ) );
    }
}

TEST( ErrorsTest, ReportMarksParserUntilRecovery )
{
    for ( const Row& row : s_kRows )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( 0, PimVCardParserInspector( parser ).ErrorReported() );
        row.m_run( parser );
        EXPECT_EQ( row.m_run == RunVCards ? 0 : 1, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( ErrorsTest, RowsCoverEveryLabelAndMessage )
{
    std::set<std::string> seen;
    for ( const Row& row : s_kRows )
    {
        for ( const Report& report : row.m_reports )
            seen.insert( { report.m_label, report.m_message } );
    }
    std::set<std::string> all;
    for ( const QString& text : { s_kParseVCardsLabel,
                                  s_kParseVCardLabel,
                                  s_kParseStartLabel,
                                  s_kParseEndLabel,
                                  s_kParseGroupLabel,
                                  s_kParsePropertiesLabel,
                                  s_kParsePropertyLabel,
                                  s_kParseParametersLabel,
                                  s_kParseParameterLabel,
                                  s_kParseQuotedParamValueLabel,
                                  s_kParseValuesLabel,
                                  s_kErrCouldNotParseVCard,
                                  s_kErrCouldNotParseBegin,
                                  s_kErrCouldNotParseEnd,
                                  s_kErrCouldNotParseProperties,
                                  s_kErrCouldNotParseProperty,
                                  s_kErrCouldNotParseParameter,
                                  s_kErrIllegalCharacter,
                                  s_kErrQpAndBase64,
                                  s_kErrExpectedGroupOrName,
                                  s_kErrExpectedName,
                                  s_kErrExpectedParamNameOrValue,
                                  s_kErrExpectedParamValue,
                                  s_kErrExpectedQuotedParamValue,
                                  s_kErrExpectedColonToken,
                                  s_kErrExpectedCrlfToken,
                                  s_kErrExpectedDQuoteToken,
                                  s_kErrExpectedColonChar,
                                  s_kErrExpectedColonOrSemicolonChar,
                                  s_kErrExpectedParametersList,
                                  s_kErrExpectedValuesList } )
        all.insert( text.toStdString() );
    EXPECT_EQ( all, seen );
}

// The log, line by line

namespace
{

/// The log of an operation on a text, without the parse time.
std::string LogOf( void ( *a_run )( PimVCardParser& ), const char* a_text )
{
    const LogCapture log;
    PimVCardParser parser( a_text );
    a_run( parser );
    static const std::regex milliseconds( "vCards parsed in: [0-9]+ ms\n" );
    return std::regex_replace( TextOf( log ), milliseconds, "vCards parsed in: # ms\n" );
}

} // namespace

TEST( ErrorLogTest, ConstructionWritesNothing )
{
    const LogCapture log;
    const PimVCardParser parser( "FN :a\r\n" );
    EXPECT_EQ( "", TextOf( log ) );
}

TEST( ErrorLogTest, SuccessWritesNothing )
{
    const LogCapture log;
    PimVCardParser parser( "BEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\n" );
    EXPECT_TRUE( Take( parser.ParseVCard() ).has_value() );
    EXPECT_EQ( "", TextOf( log ) );
}

TEST( ErrorLogTest, IllegalCharacterFollowsHeading )
{
    EXPECT_EQ( R"log(critical|Error in "ParseGroup()" ->
  "Found illegal character..."
critical|   Illegal Character: ' '
debug|---------------------------- PimVCardLexer Status:
debug|Token:              ""
debug|Next Char:          ' '
debug|Prev Token:         "FN"
debug|Text Stream Status: Ok
debug|Line Number:         1
critical|
)log",
               LogOf( RunGroup, "item1.FN :a\r\n" ) );
}

TEST( ErrorLogTest, StatusShowsPattern )
{
    EXPECT_EQ( R"log(critical|Error in "ParseProperty()" ->
  "Expected COLON token..."
debug|---------------------------- PimVCardLexer Status:
debug|Regex:              "\\A:\\z"
debug|Token:              ""
debug|Next Char:          'V'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         1
critical|
)log",
               LogOf( RunProperty, "BEGIN  VCARD\r\n" ) );
}

TEST( ErrorLogTest, BadLineWritesBlockForEachLevel )
{
    const char* text = "BEGIN:VCARD\r\nFN:a\r\nN;ENCODING=QUOTED-PRINTABLE:\"\u00E4=\rb\r\nEND:VCARD\r\n"
                       "BEGIN:VCARD\r\nEND:VCARD\r\n";
    EXPECT_EQ( R"log(critical|Error in "ParseValues()" ->
  "Expected CRLF token..."
debug|---------------------------- PimVCardLexer Status:
debug|Regex:              "\\A\\R\\z"
debug|Token:              "\r"
debug|Next Char:          'b'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         3
critical|
critical|Error in "ParseProperty()" ->
  "Expected VALUES list to be non-null..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r"
debug|Next Char:          'b'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         3
critical|
critical|Error in "ParseProperties()" ->
  "Could not parse property..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r"
debug|Next Char:          'b'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         3
critical|
critical|Error in "ParseVCard()" ->
  "Could not parse properties..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r"
debug|Next Char:          'b'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         3
critical|
critical|Error in "ParseVCards()" ->
  "Could not parse vCard..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r"
debug|Next Char:          'b'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         3
critical|
debug|[PVCP] : 1 vCards parsed in: # ms
)log",
               LogOf( RunVCards, text ) );
}

TEST( ErrorLogTest, BadBeginLineIsPrintedAfterStatus )
{
    EXPECT_EQ( R"log(critical|Error in "ParseStart()" ->
  "Could not parse BEGIN property..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r\n"
debug|Next Char:          '\x0'
debug|Prev Token:         ""
debug|Text Stream Status: ReadPastEnd
debug|Line Number:         2
debug|   PimVCardProperty:
debug|   Group:  ""
debug|   Name:   "FN"
debug|   Values:
debug|      "Jo \"M\"\tV\nx"
critical|
critical|Error in "ParseVCard()" ->
  "Could not parse BEGIN property..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r\n"
debug|Next Char:          '\x0'
debug|Prev Token:         ""
debug|Text Stream Status: ReadPastEnd
debug|Line Number:         2
critical|
critical|Error in "ParseVCards()" ->
  "Could not parse vCard..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r\n"
debug|Next Char:          '\x0'
debug|Prev Token:         ""
debug|Text Stream Status: ReadPastEnd
debug|Line Number:         2
critical|
debug|[PVCP] : 0 vCards parsed in: # ms
)log",
               LogOf( RunVCards, "FN:Jo \"M\"\tV\nx\r\n" ) );
}

TEST( ErrorLogTest, BadEndLineIsPrintedAfterStatus )
{
    EXPECT_EQ( R"log(critical|Error in "ParseEnd()" ->
  "Could not parse END property..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r\n\r\n"
debug|Next Char:          'B'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         5
debug|   PimVCardProperty:
debug|   Group:  "item1"
debug|   Name:   "End"
debug|   PimVCardParameter:
debug|   Name:   "a"
debug|   Value:  "\"b;c\",d"
debug|   PimVCardParameter:
debug|   Name:   ""
debug|   Value:  "HOME"
debug|   Values:
debug|      "vCard"
debug|      "x"
critical|
critical|Error in "ParseVCard()" ->
  "Could not parse END property..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r\n\r\n"
debug|Next Char:          'B'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         5
critical|
critical|Error in "ParseVCards()" ->
  "Could not parse vCard..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              "\r\n\r\n"
debug|Next Char:          'B'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         5
critical|
debug|[PVCP] : 1 vCards parsed in: # ms
)log",
               LogOf( RunVCards, "BEGIN:VCARD\r\nFN:a\r\nitem1.End;a=\"b;c\",d;HOME: vCard;x\r\n\r\nB\r\n"
                                 "BEGIN:VCARD\r\nEND:VCARD\r\n" ) );
}

TEST( ErrorLogTest, NullEndLinePrintsNoProperty )
{
    EXPECT_EQ( R"log(critical|Error in "ParseEnd()" ->
  "Could not parse END property..."
debug|---------------------------- PimVCardLexer Status:
debug|Token:              ""
debug|Next Char:          '\x0'
debug|Prev Token:         ""
debug|Text Stream Status: Ok
debug|Line Number:         1
critical|
)log",
               LogOf( RunEndOfNothing, "FN:a\r\n" ) );
}

TEST( ErrorLogTest, TimingLineShowsCountAndMilliseconds )
{
    const LogCapture log;
    PimVCardParser parser( "BEGIN:VCARD\r\nEND:VCARD\r\nBEGIN:VCARD\r\nEND:VCARD\r\n" );
    EXPECT_TRUE( Take( parser.ParseVCards() ).has_value() );
    EXPECT_TRUE( std::regex_match(
        TextOf( log ), std::regex( R"x(debug\|\[PVCP\] : 2 vCards parsed in: (0|[1-9][0-9]{0,4}) ms\n)x" ) ) )
        << TextOf( log );
}

// The illegal character as Qt writes it

TEST( ErrorLogTest, IllegalCharacterIsWrittenAsQtDoes )
{
    const std::pair<const char*, const char*> rows[] = {
        { "!", "'!'" },
        { "_", "'_'" },
        { "~", "'~'" },
        { " ", "' '" },
        { "'", "'''" },
        { "\"", "'\"'" },
        { "\\", R"('\')" },
        { "\t", R"('\x9')" },
        { "\n", R"('\xa')" },
        { "\r", R"('\xd')" },
        { "\x01", R"('\x1')" },
        { "\x1F", R"('\x1f')" },
        { "\x7F", "'\x7F'" },
        { "", R"('\x0')" },
        { "\u0080", R"('\u0080')" },
        { "\u00E9", R"('\u00e9')" },
        { "\u540D", R"('\u540d')" },
        { "\uFFFD", R"('\ufffd')" },
        { "\U0001F600", R"('\ud83d')" },
    };
    for ( const auto& [text, illegal] : rows )
    {
        SCOPED_TRACE( illegal );
        const LogCapture log;
        PimVCardParser parser( text );
        RunGroup( parser );
        EXPECT_EQ( ( std::vector<Report>{ { "ParseGroup()", "Found illegal character...", "", illegal } } ),
                   ReportsOf( log ) );
    }
}

TEST( ErrorLogTest, IllegalCharacterIsLookAhead )
{
    const std::pair<const char*, const char*> rows[] = {
        { "FN\uFEFF:a", R"('\ufeff')" },
        { "FN\\\t", R"('\x9')" },
        { "FN\\", R"('\x0')" },
        { "FN\\\r\n", R"('\xd')" },
    };
    for ( const auto& [text, illegal] : rows )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        RunGroup( parser );
        ASSERT_EQ( 1U, ReportsOf( log ).size() );
        EXPECT_EQ( illegal, ReportsOf( log ).front().m_illegal );
    }
}

} // namespace PimManager::vCard
