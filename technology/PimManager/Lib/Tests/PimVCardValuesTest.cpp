#include "PimVCardParser.h"
#include "PimVCardTestReports.h"
#include "PimVCardTestResults.h"
#include "PimVCardVocabulary.h"

#include <gtest/gtest.h>

namespace PimManager::vCard
{

namespace
{

const std::string s_kQpParameters = ";ENCODING=QUOTED-PRINTABLE:";
const std::string s_kBase64Parameters = ";ENCODING=b:";
const Report s_kNoLineEnd{ "ParseValues()", "Expected CRLF token...", R"("\\A\\R\\z")" };

/// A parser that has read a content line up to and including its colon.
class ValueParser
{
public:
    /// \param a_parameters the parameters of the line, including the colon. Empty for a line without a colon.
    ValueParser( const std::string& a_parameters, const std::string& a_text ) :
        m_parser( QByteArray::fromStdString( a_parameters + a_text ) )
    {
        if ( !a_parameters.empty() )
            PassParameters();
    }

    std::optional<std::vector<std::string>> Parse() { return Take( m_parser.ParseValues() ); }
    char16_t Next() const { return NextChar( m_parser ); }
    PimVCardParserInspector State() const { return PimVCardParserInspector( m_parser ); }

    /// Reads the parameters and the colon. Both encodings together are an error, but stay set, which some tests need.
    void PassParameters()
    {
        const LogCapture log;
        Take( m_parser.ParseParameters( false ) );
        State().Lexer().GetToken( QRegularExpression( s_kColonPattern ), true );
    }

private:
    PimVCardParser m_parser;
};

struct Row
{
    const char* m_name;
    const char* m_text;
    std::vector<std::string> m_values;
    char16_t m_next = u'\r';
};

void ExpectValues( const std::string& a_parameters, const std::vector<Row>& a_rows )
{
    for ( const Row& row : a_rows )
    {
        SCOPED_TRACE( row.m_name );
        ValueParser parser( a_parameters, row.m_text );
        const LogCapture log;
        EXPECT_EQ( row.m_values, parser.Parse() );
        EXPECT_EQ( row.m_next, parser.Next() );
        EXPECT_EQ( "", TextOf( log ) );
        EXPECT_FALSE( parser.State().IsQuotedPrintable() );
        EXPECT_FALSE( parser.State().IsBase64() );
    }
}

} // namespace

TEST( ValuesTest, SemicolonsSplitComponents )
{
    const std::vector<Row> rows = {
        { "one", "abc\r\n", { "abc" } },
        { "two", "abc;def\r\n", { "abc", "def" } },
        { "empty line", "\r\n", { "" } },
        { "empty text", "", { "" }, u'\0' },
        { "one semicolon", ";\r\n", { "", "" } },
        { "only semicolons", ";;;\r\n", { "", "", "", "" } },
        { "trailing semicolon", "a;\r\n", { "a", "" } },
        { "leading semicolons", ";;a\r\n", { "", "", "a" } },
        { "address",
          ";;52 Ridgeback Hollow Avenue;Port Selwyn;Upper Kestria;31870;\r\n",
          { "", "", "52 Ridgeback Hollow Avenue", "Port Selwyn", "Upper Kestria", "31870", "" } },
        { "text ends", "a;b", { "a", "b" }, u'\0' },
    };
    ExpectValues( "", rows );
}

TEST( ValuesTest, OtherCharactersDoNotSplit )
{
    const std::vector<Row> rows = {
        { "commas", "Thornvale, Corvalia\r\n", { "Thornvale, Corvalia" } },
        { "delimiters", "a:b=c.d\"e\"\r\n", { "a:b=c.d\"e\"" } },
        { "blanks are kept", " \ta b\t \r\n", { " \ta b\t " } },
        { "line feed", "a\nb\r\n", { "a\nb" } },
        { "line feed at both ends", "\na\n\r\n", { "\na\n" } },
        { "first and last of ASCII", "!~\r\n", { "!~" } },
        { "NEL, U+2028 and U+2029", "a\u0085b\u2028c\u2029d\r\n", { "a\u0085b\u2028c\u2029d" } },
        { "two and three bytes", "\u0080\u00E9\u540D\uFFFD\r\n", { "\u0080\u00E9\u540D\uFFFD" } },
        { "four bytes", "a\U00010000\U0001F600b\r\n", { "a\U00010000\U0001F600b" } },
        { "highest character", "\U0010FFFF\r\n", { "\U0010FFFF" } },
        { "not UTF-8", "a\xFF\r\n", { "a\uFFFD" } },
    };
    ExpectValues( "", rows );
}

TEST( ValuesTest, NonValueCharacterEndsValue )
{
    const std::vector<Row> rows = {
        { "carriage return", "a\rb", { "a" }, u'\r' },
        { "control character", "a\x01z", { "a" }, u'\x01' },
        { "vertical tab", "a\vb", { "a" }, u'\v' },
        { "form feed", "a\fb", { "a" }, u'\f' },
        { "last control character", "a\x1Fz", { "a" }, u'\x1F' },
        { "DEL", "a\x7Fz", { "a" }, u'\x7F' },
        { "U+FEFF", "a\uFEFFb", { "a" }, u'\uFEFF' },
        { "in the second component", "a;b\x01;c", { "a", "b" }, u'\x01' },
    };
    ExpectValues( "", rows );
}

TEST( ValuesTest, EscapePairsLoseBackslash )
{
    const std::vector<Row> rows = {
        { "backslash", R"(a\\b)", { R"(a\b)" }, u'\0' },
        { "comma", R"(Last\, Suffix)", { "Last, Suffix" }, u'\0' },
        { "semicolon", R"(a\;b;c)", { "a;b", "c" }, u'\0' },
        { "colon", R"(a\:b)", { "a:b" }, u'\0' },
        { "two pairs", R"(a\\\,b)", { R"(a\,b)" }, u'\0' },
        { "all pairs", R"(a\\\,\;\:)", { R"(a\,;:)" }, u'\0' },
        { "at the end of a component", R"(a\;;b)", { "a;", "b" }, u'\0' },
        { "second component", R"(a;b\,c)", { "a", "b,c" }, u'\0' },
    };
    ExpectValues( "", rows );
}

TEST( ValuesTest, OtherEscapeEndsValue )
{
    const std::vector<Row> rows = {
        { "letter", R"(a\nb)", { "a" }, u'n' },
        { "blank", R"(a\ b)", { "a" }, u' ' },
        { "quote", R"(a\"b)", { "a" }, u'"' },
        { "line feed", "a\\\nb", { "a" }, u'\n' },
        { "carriage return", "a\\\r\n", { "a" }, u'\r' },
        { "U+FEFF", "a\\\uFEFFb", { "a" }, u'\uFEFF' },
        { "end of text", R"(a\)", { "a" }, u'\0' },
        { "after a good pair", R"(a\,\nb)", { "a," }, u'n' },
    };
    ExpectValues( "", rows );
}

TEST( ValuesTest, BackslashThatBeginsComponentEndsValue )
{
    const std::vector<Row> rows = {
        { "first component", R"(\,a)", { "" }, u'\\' },
        { "second component", R"(a;\;b)", { "a", "" }, u'\\' },
        { "alone", R"(\)", { "" }, u'\\' },
    };
    ExpectValues( "", rows );
}

TEST( ValuesTest, CarriageReturnAfterBackslashIsReadTwice )
{
    ValueParser parser( "", "a\\\r\nb" );
    EXPECT_EQ( std::vector<std::string>{ "a" }, parser.Parse() );
    EXPECT_EQ( QStringLiteral( "\r\r\n" ),
               parser.State().Lexer().GetToken( QRegularExpression( s_kCrlfPattern ), false ) );
    EXPECT_EQ( 1, parser.State().Lexer().m_lineNumber );
}

// QUOTED-PRINTABLE

TEST( QuotedPrintableValuesTest, SoftLineBreaksAreJoined )
{
    const std::vector<Row> rows = {
        { "none", "=4B=75\r\n", { "=4B=75" } },
        { "one", "=4B=\r\n=75\r\n", { "=4B=75" } },
        { "several", "a=\r\nb=\r\nc\r\n", { "abc" } },
        { "empty pieces", "a=\r\n=\r\n=\r\nb\r\n", { "ab" } },
        { "start of the value", "=\r\na\r\n", { "a" } },
        { "start of a component", "a;=\r\nb;=\r\n=\r\nc\r\n", { "a", "b", "c" } },
        { "end of a component", "a=\r\n;b=\r\n;\r\n", { "a", "b", "" } },
        { "components in a piece", "a;b=\r\nc;d=\r\ne;f\r\n", { "a", "bc", "de", "f" } },
        { "end of the text", "a=\r\n", { "a" }, u'\0' },
        { "nothing else", "=\r\n", { "" }, u'\0' },
        { "two equals signs", "a==\r\nb\r\n", { "a=b" } },
        { "escape pair behind", "a=\r\nb\\;c\r\n", { "ab;c" } },
        { "backslash that the line end loses", "a=\r\n\\;c\r\n", { "a", "c" } },
    };
    ExpectValues( s_kQpParameters, rows );
}

TEST( QuotedPrintableValuesTest, BlanksAfterSoftLineBreakAreKept )
{
    const std::vector<Row> rows = {
        { "blank", "a=\r\n b\r\n", { "a b" } },
        { "blanks and tabs", "a=\r\n \t b\r\n", { "a \t b" } },
        { "at the start", "=\r\n\tb\r\n", { "\tb" } },
    };
    ExpectValues( s_kQpParameters, rows );
}

TEST( QuotedPrintableValuesTest, EqualsElsewhereIsNoSoftLineBreak )
{
    const std::vector<Row> rows = {
        { "before a semicolon", "a=;b=;c\r\n", { "a=", "b=", "c" } },
        { "before a line feed", "a=\nb\r\n", { "a=\nb" } },
        { "before LF CR LF", "a=\n\r\n", { "a=\n" } },
        { "before blanks", "a= \r\n", { "a= " } },
    };
    ExpectValues( s_kQpParameters, rows );
}

TEST( QuotedPrintableValuesTest, SoftLineBreakIsEndOfPlainValue )
{
    const std::vector<Row> rows = {
        { "no encoding", "a=\r\nb\r\n", { "a=" } },
        { "nothing else", "=\r\n", { "=" } },
    };
    ExpectValues( "", rows );
}

TEST( QuotedPrintableValuesTest, OtherLineEndingFailsAndKeepsFlag )
{
    const std::vector<Row> rows = {
        { "end of the text", "a=", {} },
        { "empty line", "a=\r\n\r\nb\r\n", {} },
        { "carriage return", "a=\rb", {} },
        { "vertical tab", "a=\vb", {} },
        { "CR LF and form feed", "a=\r\n\fb", {} },
        { "control character", "a=\x01", {} },
        { "backslash and letter", "a=\\nb\r\n", {} },
        { "backslash before CR LF", "a=\\\r\nb\r\n", {} },
        { "second soft line break", "a=\r\nb=\r", {} },
        { "second component", "a;b=\r\n\r\n", {} },
    };
    for ( const Row& row : rows )
    {
        SCOPED_TRACE( row.m_name );
        ValueParser parser( s_kQpParameters, row.m_text );
        const LogCapture log;
        EXPECT_EQ( std::nullopt, parser.Parse() );
        EXPECT_EQ( std::vector<Report>{ s_kNoLineEnd }, ReportsOf( log ) );
        EXPECT_TRUE( parser.State().IsQuotedPrintable() );
        EXPECT_EQ( 1, parser.State().ErrorReported() );
    }
}

TEST( QuotedPrintableValuesTest, SoftLineBreaksCountAsLines )
{
    ValueParser parser( s_kQpParameters, "a=\r\nb=\r\nc\r\n" );
    EXPECT_EQ( std::vector<std::string>{ "abc" }, parser.Parse() );
    EXPECT_EQ( 3, parser.State().Lexer().m_lineNumber );
}

// BASE64

TEST( Base64ValuesTest, AlphabetIsAccepted )
{
    const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
    const std::string line = alphabet + "\r\n";
    const std::vector<Row> rows = {
        { "whole alphabet", line.c_str(), { alphabet } },
        { "empty", "\r\n", { "" } },
        { "components", "AA==;BB;\r\n", { "AA==", "BB", "" } },
        { "equals is no soft line break", "AA=\r\nBB\r\n", { "AA=" } },
    };
    ExpectValues( s_kBase64Parameters, rows );
}

TEST( Base64ValuesTest, OtherCharacterEndsValue )
{
    const std::vector<Row> rows = {
        { "blank", "AA BB", { "AA" }, u' ' },
        { "line feed", "AA\nBB", { "AA" }, u'\n' },
        { "comma", "AA,BB", { "AA" }, u',' },
        { "dash", "AA-BB", { "AA" }, u'-' },
        { "colon", "AA:BB", { "AA" }, u':' },
        { "other letter", "AA\u00C4", { "AA" }, u'\u00C4' },
        { "escape pair", R"(AA\,BB)", { "AA" }, u',' },
        { "escaped semicolon separates", R"(AA\;BB)", { "AA", "BB" }, u'\0' },
        { "first character", "-AA", { "" }, u'-' },
        { "second component", "AA;-B", { "AA", "" }, u'-' },
    };
    ExpectValues( s_kBase64Parameters, rows );
}

TEST( Base64ValuesTest, ValueContinuesWithValueCharacters )
{
    const std::string both = ";ENCODING=b;ENCODING=QUOTED-PRINTABLE:";
    const std::vector<Row> rows = {
        { "one piece", "AA\r\n", { "AA" } },
        { "continued", "AA=\r\nB, B;CC\r\n", { "AAB, B", "CC" } },
        { "next component is base64 again", "AA=\r\nB B;C C", { "AAB B", "C" }, u' ' },
        { "continued twice", "AA=\r\nB-=\r\n-C\r\n", { "AAB--C" } },
    };
    ExpectValues( both, rows );
}

// Flags

TEST( ValuesTest, CompletionClearsBothFlags )
{
    ValueParser parser( ";ENCODING=b;ENCODING=QUOTED-PRINTABLE:", "AA;BB,C" );
    EXPECT_TRUE( parser.State().IsQuotedPrintable() );
    EXPECT_TRUE( parser.State().IsBase64() );
    EXPECT_EQ( ( std::vector<std::string>{ "AA", "BB" } ), parser.Parse() );
    EXPECT_FALSE( parser.State().IsQuotedPrintable() );
    EXPECT_FALSE( parser.State().IsBase64() );
    EXPECT_EQ( std::vector<std::string>{ ",C" }, parser.Parse() );
}

TEST( ValuesTest, FailureKeepsBothFlags )
{
    const LogCapture log;
    ValueParser parser( ";ENCODING=b;ENCODING=QUOTED-PRINTABLE:", "AA=" );
    EXPECT_EQ( std::nullopt, parser.Parse() );
    EXPECT_TRUE( parser.State().IsQuotedPrintable() );
    EXPECT_TRUE( parser.State().IsBase64() );
}

TEST( ValuesTest, ErrorMarkDoesNotDisturbValues )
{
    const LogCapture log;
    PimVCardParser parser( "!abc;def" );
    EXPECT_EQ( std::nullopt, Take( parser.ParseParameter( false ) ) );
    EXPECT_EQ( ( std::vector<std::string>{ "!abc", "def" } ), Take( parser.ParseValues() ) );
    EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
}

} // namespace PimManager::vCard
