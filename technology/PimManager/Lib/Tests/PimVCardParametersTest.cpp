#include "PimVCardParser.h"
#include "PimVCardTestReports.h"
#include "PimVCardTestResults.h"

#include <gtest/gtest.h>

namespace PimManager::vCard
{

namespace
{

const std::string s_kNameRegex = R"("\\A[a-zA-Z0-9\\-]+\\z")";

const Report s_kListFailed{ "ParseParameters()", "Could not parse PARAMETER..." };
const Report s_kNoNameOrValue{ "ParseParameter()", "Expected PARAM NAME/VALUE token...", s_kNameRegex };
const Report s_kNoValue{ "ParseParameter()", "Expected PARAM VALUE token...", s_kNameRegex };
const Report s_kNoElement{ "ParseParameter()", "Expected PARAM VALUE token..." };
const Report s_kBothEncodings{ "ParseParameter()", "Properties cannot be encoded as both QUOTED-PRINTABLE and BASE64" };
const Report s_kNoQuotedText{ "ParseQuotedParamValue()", "Expected QUOTED PARAM VALUE token..." };
const Report s_kNoClosingQuote{ "ParseQuotedParamValue()", "Expected DQUOTE token..." };

Report NoColon( const std::string& a_illegal )
{
    return { "ParseParameter()", "Expected COLON character...", "", a_illegal };
}

Report NoColonOrSemicolon( const std::string& a_illegal )
{
    return { "ParseParameter()", "Expected COLON/SEMICOLON character...", "", a_illegal };
}

} // namespace

// ParseParameters

namespace
{

struct ListRow
{
    const char* m_name;
    const char* m_text;
    std::vector<ParameterData> m_parameters;
};

const std::vector<ListRow> s_kLists = {
    { "no parameter", ":", {} },
    { "bare", ";HOME:", { { "", "HOME" } } },
    { "named", ";type=WORK:", { { "type", "WORK" } } },
    { "same name twice", ";type=WORK;type=HOME:", { { "type", "WORK" }, { "type", "HOME" } } },
    { "bare ones", ";WORK;VOICE:", { { "", "WORK" }, { "", "VOICE" } } },
    { "bare list and named list",
      ";HOME,WORK,pref;X-OTHER=VOICE,INTERNET,pref:",
      { { "", "HOME,WORK,pref" }, { "X-OTHER", "VOICE,INTERNET,pref" } } },
    { "blank before", "; HOME,WORK,pref:", { { "", "HOME,WORK,pref" } } },
    { "tab before", ";\tHOME,WORK,pref:", { { "", "HOME,WORK,pref" } } },
    { "blank before each", "; type=WORK;\tHOME:", { { "type", "WORK" }, { "", "HOME" } } },
    { "quoted", R"(;label="this is a quoted string!":)", { { "label", R"("this is a quoted string!")" } } },
    { "quoted list",
      R"x(;label="this is a quoted string!","this, is another; quoted string :)":)x",
      { { "label", R"x("this is a quoted string!","this, is another; quoted string :)")x" } } },
    { "quoted element first", R"(;a="x y",b:)", { { "a", R"("x y",b)" } } },
    { "quoted element in the middle", R"(;a=b,"x=y",c;d:)", { { "a", R"(b,"x=y",c)" }, { "", "d" } } },
    { "quoted element in a bare list", R"(;HOME,"a b":)", { { "", R"(HOME,"a b")" } } },
    { "digits and dashes", ";-1=2-:", { { "-1", "2-" } } },
    { "letter case", ";TyPe=wOrK;pReF:", { { "TyPe", "wOrK" }, { "", "pReF" } } },
    { "one character each", ";a=b,c:", { { "a", "b,c" } } },
    { "backslashes that the runs lose", R"(;a\=b\,c\;d\:)", { { "a", "b,c" }, { "", "d" } } },
    { "other letters in quotes", ";a=\"\u00C4\u20AC\U0001F600\":", { { "a", "\"\u00C4\u20AC\U0001F600\"" } } },
};

} // namespace

TEST( ParametersTest, AcceptedListsAreReturnedAsWritten )
{
    for ( const ListRow& row : s_kLists )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( row.m_parameters, Take( parser.ParseParameters( false ) ) );
        EXPECT_EQ( u':', NextChar( parser ) );
        EXPECT_EQ( "", TextOf( log ) );
    }
}

TEST( ParametersTest, BoundaryListsAreReadAlike )
{
    for ( const ListRow& row : s_kLists )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( row.m_parameters, Take( parser.ParseParameters( true ) ) );
        EXPECT_EQ( "", TextOf( log ) );
    }
}

TEST( ParametersTest, BoundaryListEndsAtAnyCharacter )
{
    for ( const char* text : { "", " :VCARD", "\t:VCARD", "x", "=", "\r\n" } )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_EQ( std::vector<ParameterData>(), Take( parser.ParseParameters( true ) ) );
        EXPECT_EQ( "", TextOf( log ) );
    }
}

TEST( ParametersTest, ListAfterOneThatFailedIsDropped )
{
    const LogCapture log;
    PimVCardParser parser( ";a=b;c;:" );
    EXPECT_EQ( std::nullopt, Take( parser.ParseParameters( false ) ) );
    EXPECT_EQ( ( std::vector<Report>{ s_kNoNameOrValue, s_kListFailed } ), ReportsOf( log ) );
}

TEST( ParametersTest, GoodListOfMarkedParserFails )
{
    const LogCapture log;
    PimVCardParser parser( "!;HOME:" );
    EXPECT_EQ( std::nullopt, Take( parser.ParseParameter( false ) ) );
    PimVCardParserInspector( parser ).Lexer().m_nextChar = QChar();
    EXPECT_EQ( std::nullopt, Take( parser.ParseParameters( false ) ) );
    EXPECT_EQ( ( std::vector<Report>{ NoColon( "'!'" ), s_kListFailed } ), ReportsOf( log ) );
}

// ParseParameter

TEST( ParametersTest, SingleParameterStopsBeforeDelimiter )
{
    PimVCardParser parser( ";type=WORK;HOME,pref:1" );
    EXPECT_EQ( ( ParameterData{ "type", "WORK" } ), Take( parser.ParseParameter( false ) ) );
    EXPECT_EQ( u';', NextChar( parser ) );
    EXPECT_EQ( ( ParameterData{ "", "HOME,pref" } ), Take( parser.ParseParameter( false ) ) );
    EXPECT_EQ( u':', NextChar( parser ) );
}

TEST( ParametersTest, EndOfListIsNullWithoutReport )
{
    const LogCapture log;
    PimVCardParser parser( ":1" );
    EXPECT_EQ( nullptr, parser.ParseParameter( false ) );
    EXPECT_EQ( u':', NextChar( parser ) );
    EXPECT_EQ( "", TextOf( log ) );
    EXPECT_EQ( 0, PimVCardParserInspector( parser ).ErrorReported() );
}

TEST( ParametersTest, BlankIsNotSkippedBeforeSemicolon )
{
    const LogCapture log;
    PimVCardParser parser( " ;HOME:" );
    EXPECT_EQ( nullptr, parser.ParseParameter( false ) );
    EXPECT_EQ( std::vector<Report>{ NoColon( "' '" ) }, ReportsOf( log ) );
}

namespace
{

struct FailureRow
{
    const char* m_name;
    const char* m_text;
    std::vector<Report> m_reports;
};

const std::vector<FailureRow> s_kFailures = {
    { "end of text", "", { NoColon( R"('\x0')" ) } },
    { "no semicolon", "HOME:", { NoColon( "'H'" ) } },
    { "line end", "\r\n", { NoColon( R"('\xd')" ) } },
    { "nothing behind the semicolon", ";", { s_kNoNameOrValue } },
    { "colon behind the semicolon", ";:", { s_kNoNameOrValue } },
    { "two semicolons", ";;HOME:", { s_kNoNameOrValue } },
    { "two blanks", ";  HOME:", { s_kNoNameOrValue } },
    { "blank and tab", "; \tHOME:", { s_kNoNameOrValue } },
    { "blank behind the name", ";TYPE =HOME:", { s_kNoNameOrValue } },
    { "dot in the name", ";a.b=c:", { s_kNoNameOrValue } },
    { "no name", ";=HOME:", { s_kNoNameOrValue } },
    { "quoted without name", R"(;"HOME":)", { s_kNoNameOrValue } },
    { "quote behind the name", R"(;a"b":)", { s_kNoNameOrValue } },
    { "other letter", ";\u00C4=b:", { s_kNoNameOrValue } },
    { "text ends behind the name", ";HOME", { s_kNoNameOrValue } },
    { "no value", ";a=:", { s_kNoValue } },
    { "no value before semicolon", ";a=;b:", { s_kNoValue } },
    { "no value before comma", ";a=,b:", { s_kNoValue } },
    { "blank before the value", ";a= b:", { s_kNoValue } },
    { "two equals signs", ";a==b:", { s_kNoValue } },
    { "text ends behind equals", ";a=", { s_kNoValue } },
    { "no element", ";a=b,:", { s_kNoElement } },
    { "no element in a bare list", ";HOME,:", { s_kNoElement } },
    { "two commas", ";a=b,,c:", { s_kNoElement } },
    { "blank before the element", ";a=b, c:", { s_kNoElement } },
    { "blank behind the element", ";a=b,c :", { s_kNoElement } },
    { "equals behind the element", ";a=b,c=d:", { s_kNoElement } },
    { "text ends behind the element", ";a=b,c", { s_kNoElement } },
    { "something behind a quoted element", R"(;a=b,"c"d:)", { s_kNoElement } },
    { "second element", ";a=b,c,:", { s_kNoElement } },
    { "blank behind the value", ";a=b :", { NoColonOrSemicolon( "' '" ) } },
    { "equals behind the value", ";a=b=c:", { NoColonOrSemicolon( "'='" ) } },
    { "other letter in the value", ";a=b\u00E4:", { NoColonOrSemicolon( R"('\u00e4')" ) } },
    { "something behind a quoted value", R"(;a="b"c:)", { NoColonOrSemicolon( "'c'" ) } },
    { "two quoted values", R"(;a="b""c":)", { NoColonOrSemicolon( R"('"')" ) } },
    { "text ends behind the value", ";a=b", { NoColonOrSemicolon( R"('\x0')" ) } },
    { "empty quotes", R"(;a="":)", { s_kNoQuotedText, NoColonOrSemicolon( R"('"')" ) } },
    { "empty quotes in a list", R"(;a=b,"":)", { s_kNoQuotedText, s_kNoElement } },
    { "U+FEFF first in quotes", ";a=\"\uFEFFb\":", { s_kNoQuotedText, NoColonOrSemicolon( R"('\ufeff')" ) } },
    { "no closing quote", R"(;a="b;c:)", { s_kNoClosingQuote, NoColonOrSemicolon( R"('\x0')" ) } },
    { "no closing quote in a list", R"(;a=b,"c:)", { s_kNoClosingQuote, s_kNoElement } },
    { "control character in quotes", ";a=\"b\x01\":", { s_kNoClosingQuote, NoColonOrSemicolon( R"('\x1')" ) } },
};

} // namespace

TEST( ParametersTest, FailureReturnsNullAndWritesExactReports )
{
    for ( const FailureRow& row : s_kFailures )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseParameter( false ) ) );
        EXPECT_EQ( row.m_reports, ReportsOf( log ) );
        EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( ParametersTest, FailureInListAddsReport )
{
    for ( const FailureRow& row : s_kFailures )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseParameters( false ) ) );
        std::vector<Report> expected = row.m_reports;
        expected.push_back( s_kListFailed );
        EXPECT_EQ( expected, ReportsOf( log ) );
    }
}

TEST( ParametersTest, BoundaryExcusesOnlyMissingSemicolon )
{
    for ( const FailureRow& row : s_kFailures )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseParameter( true ) ) );
        const bool isExcused = row.m_reports.front().m_message == "Expected COLON character...";
        EXPECT_EQ( isExcused ? std::vector<Report>() : row.m_reports, ReportsOf( log ) );
    }
}

TEST( ParametersTest, LoneQuoteIsBuiltButReported )
{
    const LogCapture log;
    PimVCardParser parser( R"(;a="b\:)" );
    EXPECT_EQ( ( ParameterData{ "a", "\"" } ), Take( parser.ParseParameter( false ) ) );
    EXPECT_EQ( std::vector<Report>{ s_kNoClosingQuote }, ReportsOf( log ) );
}

TEST( ParametersTest, LoneQuoteMakesListFail )
{
    for ( const char* text : { R"(;a="b\:)", R"(;a=x,"b\:)", R"(;a="b\,c:)", R"(;a="b\;c:)" } )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseParameters( false ) ) );
        EXPECT_EQ( ( std::vector<Report>{ s_kNoClosingQuote, s_kListFailed } ), ReportsOf( log ) );
    }
}

// Encoding

namespace
{

struct EncodingRow
{
    const char* m_text;
    bool m_isQuotedPrintable;
    bool m_isBase64;
};

const std::vector<EncodingRow> s_kEncodings = {
    { ";ENCODING=QUOTED-PRINTABLE:", true, false },
    { ";encoding=quoted-printable:", true, false },
    { ";Encoding=Quoted-Printable:", true, false },
    { ";ENCODING=\"QUOTED-PRINTABLE\":", true, false },
    { ";ENCODING=8BIT,QUOTED-PRINTABLE,x:", true, false },
    { ";ENCODING=X-QUOTED-PRINTABLE-2:", true, false },
    { ";ENCODING=QUOTEDPRINTABLE:", false, false },
    { ";ENCODING=QUOTED,PRINTABLE:", false, false },
    { ";ENCODING=Q:", false, false },
    { ";ENCODING=BASE64:", false, true },
    { ";encoding=base64:", false, true },
    { ";EnCoDiNg=bAsE64:", false, true },
    { ";ENCODING=\"BASE64\":", false, true },
    { ";ENCODING=8BIT,BASE64:", false, true },
    { ";ENCODING=XBASE64X:", false, true },
    { ";ENCODING=b:", false, true },
    { ";ENCODING=B:", false, true },
    { ";encoding=B:", false, true },
    { ";ENCODING=bb:", false, false },
    { ";ENCODING=b,x:", false, false },
    { ";ENCODING=x,b:", false, false },
    { ";ENCODING=\"b\":", false, false },
    { ";ENCODING=8BIT:", false, false },
    { ";QUOTED-PRINTABLE:", false, false },
    { ";BASE64:", false, false },
    { ";b:", false, false },
    { ";TYPE=BASE64:", false, false },
    { ";X-ENCODING=b:", false, false },
    { ";ENCODINGS=QUOTED-PRINTABLE:", false, false },
};

} // namespace

TEST( ParametersTest, EncodingParameterSetsItsFlag )
{
    for ( const EncodingRow& row : s_kEncodings )
    {
        SCOPED_TRACE( row.m_text );
        PimVCardParser parser( row.m_text );
        EXPECT_TRUE( Take( parser.ParseParameters( false ) ).has_value() );
        EXPECT_EQ( row.m_isQuotedPrintable, PimVCardParserInspector( parser ).IsQuotedPrintable() );
        EXPECT_EQ( row.m_isBase64, PimVCardParserInspector( parser ).IsBase64() );
    }
}

TEST( ParametersTest, LaterEncodingDoesNotClearFlag )
{
    PimVCardParser parser( ";ENCODING=b;ENCODING=8BIT:" );
    EXPECT_TRUE( Take( parser.ParseParameters( false ) ).has_value() );
    EXPECT_TRUE( PimVCardParserInspector( parser ).IsBase64() );
}

TEST( ParametersTest, BothEncodingsFail )
{
    for ( const char* text :
          { ";ENCODING=QUOTED-PRINTABLE;ENCODING=BASE64:", ";ENCODING=QUOTED-PRINTABLE;ENCODING=b:",
            ";ENCODING=B;TYPE=JPEG;encoding=quoted-printable:", ";ENCODING=QUOTED-PRINTABLE,BASE64:" } )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseParameters( false ) ) );
        EXPECT_EQ( ( std::vector<Report>{ s_kBothEncodings, s_kListFailed } ), ReportsOf( log ) );
        EXPECT_TRUE( PimVCardParserInspector( parser ).IsQuotedPrintable() );
        EXPECT_TRUE( PimVCardParserInspector( parser ).IsBase64() );
    }
}

TEST( ParametersTest, EncodingOfFailedParameterIsNotNoted )
{
    for ( const char* text : { ";ENCODING=b ", ";ENCODING=BASE64,:", ";ENCODING=\"BASE64\"x" } )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseParameter( false ) ) );
        EXPECT_FALSE( PimVCardParserInspector( parser ).IsBase64() );
    }
}

TEST( ParametersTest, EncodingStaysSetWhenLaterParameterFails )
{
    const LogCapture log;
    PimVCardParser parser( ";ENCODING=BASE64;:" );
    EXPECT_EQ( std::nullopt, Take( parser.ParseParameters( false ) ) );
    EXPECT_TRUE( PimVCardParserInspector( parser ).IsBase64() );
}

// ParseQuotedParamValue

namespace
{

struct QuotedRow
{
    const char* m_name;
    const char* m_text;
    std::string m_value;
};

const std::vector<QuotedRow> s_kQuoted = {
    { "plain", R"(abc")", R"(abc")" },
    { "delimiters", R"(a:b;c,d=e.f")", R"(a:b;c,d=e.f")" },
    { "blanks and tabs", "\t a \t\"", "\t a \t\"" },
    { "first and last of ASCII", "!#~\"", "!#~\"" },
    { "beyond ASCII", "\u0080\u00E9\u2028\uFFFD\"", "\u0080\u00E9\u2028\uFFFD\"" },
    { "four-byte characters", "\U0001F600\U0010FFFF\"", "\U0001F600\U0010FFFF\"" },
    { "backslash at the start", R"(\ab")", R"(\ab")" },
    { "backslash before the quote", R"(ab\")", R"(ab")" },
};

const std::vector<FailureRow> s_kBadQuoted = {
    { "nothing", "", { s_kNoQuotedText } },
    { "closing quote only", "\"", { s_kNoQuotedText } },
    { "control character first", "\x01\"", { s_kNoQuotedText } },
    { "line end first", "\r\n\"", { s_kNoQuotedText } },
    { "no closing quote", "abc", { s_kNoClosingQuote } },
    { "control character", "a\x1F\"", { s_kNoClosingQuote } },
    { "DEL", "a\x7F\"", { s_kNoClosingQuote } },
    { "line end", "a\r\n\"", { s_kNoClosingQuote } },
    { "line feed", "a\n\"", { s_kNoClosingQuote } },
    { "U+FEFF", "a\uFEFF\"", { s_kNoClosingQuote } },
    { "backslash inside", R"(a\b")", { s_kNoClosingQuote } },
    { "escaped comma", R"(a\,b")", { s_kNoClosingQuote } },
    { "two backslashes", R"(a\\")", { s_kNoClosingQuote } },
    { "backslash at the end of the text", R"(a\)", { s_kNoClosingQuote } },
};

} // namespace

TEST( QuotedParameterValueTest, TextIncludesClosingQuote )
{
    for ( const QuotedRow& row : s_kQuoted )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( QByteArray( row.m_text ) + ':' );
        EXPECT_EQ( row.m_value, parser.ParseQuotedParamValue().toStdString() );
        EXPECT_EQ( u':', NextChar( parser ) );
        EXPECT_EQ( "", TextOf( log ) );
    }
}

TEST( QuotedParameterValueTest, FailureReturnsEmptyTextAndWritesReport )
{
    for ( const FailureRow& row : s_kBadQuoted )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( "", parser.ParseQuotedParamValue().toStdString() );
        EXPECT_EQ( row.m_reports, ReportsOf( log ) );
        EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

} // namespace PimManager::vCard
