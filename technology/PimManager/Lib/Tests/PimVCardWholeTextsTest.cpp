#include "PimVCardParser.h"
#include "PimVCardTestReports.h"
#include "PimVCardTestResults.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace PimManager::vCard
{

namespace
{

// ParseStart

const char* const s_kStarts[] = {
    "BEGIN:VCARD\r\n",          "BEGIN  :     \tVCARD\r\n",     "begin:vcard\r\n",
    "bEgIn\t:\tVcArD\r\n",      "item1.BEGIN:VCARD\r\n",        "a.b.Begin:vCard\r\n",
    "BEGIN;X=y;HOME:VCARD\r\n", "g.begin;a=\"b:c\": vcard\r\n", "BEGIN:VCARD\r\n\r\n",
};

const char* const s_kOtherLines[] = {
    "BEGIN:VCARD;\r\n", "BEGIN:VCARD;x\r\n", "BEGIN:;VCARD\r\n", "BEGIN:\r\n",   "BEGIN:VCARDS\r\n",
    "BEGIN:VCARD \r\n", "BEGIN:XVCARD\r\n",  "END:VCARD\r\n",    "FN:VCARD\r\n", "BEGINS:VCARD\r\n",
};

const char* const s_kBadLines[] = {
    "", "\r\n", " BEGIN:VCARD\r\n", "BEGIN:VCARD", "BEGIN VCARD\r\n", "BEGIN;:VCARD\r\n", "BEGIN\r\n", "FN :VCARD\r\n",
};

} // namespace

TEST( StartTest, BeginLineInAnyFormIsStart )
{
    for ( const char* text : s_kStarts )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_TRUE( parser.ParseStart() );
        EXPECT_EQ( "", TextOf( log ) );
        EXPECT_EQ( 0, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( StartTest, OtherLineIsRefusedAndPrinted )
{
    for ( const char* text : s_kOtherLines )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_FALSE( parser.ParseStart() );
        const Report expected{ "ParseStart()", "Could not parse BEGIN property...", "", "", true };
        EXPECT_EQ( std::vector<Report>{ expected }, ReportsOf( log ) );
        EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( StartTest, LineThatFailsIsRefusedWithoutPrint )
{
    for ( const char* text : s_kBadLines )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_FALSE( parser.ParseStart() );
        const std::vector<Report> reports = ReportsOf( log );
        ASSERT_LT( 1U, reports.size() );
        EXPECT_EQ( ( Report{ "ParseStart()", "Could not parse BEGIN property..." } ), reports.back() );
    }
}

TEST( StartTest, StartOfMarkedParserFails )
{
    const LogCapture log;
    PimVCardParser parser( "FN:a\r\nBEGIN:VCARD\r\n" );
    EXPECT_FALSE( parser.ParseStart() );
    EXPECT_FALSE( parser.ParseStart() );
}

// ParseEnd

namespace
{

bool IsEnd( const char* a_text, PimVCardParser& a_parser )
{
    PimVCardParser lines( a_text );
    const std::unique_ptr<PimVCardProperty> property( lines.ParseProperty() );
    EXPECT_NE( nullptr, property );
    const bool isEnd = a_parser.ParseEnd( property.get() );
    EXPECT_EQ( DataOf( *property ), Take( PimVCardParser( a_text ).ParseProperty() ) ) << "the property was changed";
    return isEnd;
}

} // namespace

TEST( EndTest, EndLineInAnyFormIsEnd )
{
    for ( const char* text : { "END:VCARD\r\n", "END\t:  VCARD\r\n", "end:vcard\r\n", "eNd:vCaRd\r\n",
                               "item1.END:VCARD\r\n", "END;a=b;c:VCARD\r\n" } )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( "" );
        EXPECT_TRUE( IsEnd( text, parser ) );
        EXPECT_EQ( "", TextOf( log ) );
        EXPECT_EQ( 0, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( EndTest, OtherLineIsRefusedAndPrinted )
{
    for ( const char* text : { "END:VCARD;\r\n", "END:VCARD;x\r\n", "END:;VCARD\r\n", "END:\r\n", "END:VCARDS\r\n",
                               "END:VCARD \r\n", "BEGIN:VCARD\r\n", "FN:VCARD\r\n", "ENDS:VCARD\r\n" } )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( "" );
        EXPECT_FALSE( IsEnd( text, parser ) );
        const Report expected{ "ParseEnd()", "Could not parse END property...", "", "", true };
        EXPECT_EQ( std::vector<Report>{ expected }, ReportsOf( log ) );
        EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( EndTest, NullIsRefused )
{
    const LogCapture log;
    PimVCardParser parser( "END:VCARD\r\n" );
    EXPECT_FALSE( parser.ParseEnd( nullptr ) );
    EXPECT_EQ( ( std::vector<Report>{ { "ParseEnd()", "Could not parse END property..." } } ), ReportsOf( log ) );
}

TEST( EndTest, PropertyWithoutValuesIsRefused )
{
    const LogCapture log;
    PimVCardParser parser( "" );
    PimVCardProperty property( QString(), QStringLiteral( "END" ), new QList<PimVCardParameter*>, new QList<QString> );
    EXPECT_FALSE( parser.ParseEnd( &property ) );
}

// ParseVCard

namespace
{

std::string CardText( const std::string& a_name, const std::string& a_lineEnd = "\r\n" )
{
    return "BEGIN:VCARD" + a_lineEnd + "FN:" + a_name + a_lineEnd + "END:VCARD" + a_lineEnd;
}

CardData Card( const std::string& a_name )
{
    return { { "", "FN", {}, { a_name } } };
}

PimVCardParser ParserOf( const std::string& a_text )
{
    return PimVCardParser( QByteArray::fromStdString( a_text ) );
}

// Whole cards and broken ones. All lines end with CR LF.
const std::string s_kA = CardText( "A" );
const std::string s_kB = CardText( "B" );
const std::string s_kC = CardText( "C" );
const std::string s_kBroken = "BEGIN:VCARD\r\nFN :x\r\nEND:VCARD\r\n";
const std::string s_kEmpty = "BEGIN:VCARD\r\nEND:VCARD\r\n";
const std::string s_kWrongEnd = "BEGIN:VCARD\r\nFN:x\r\nEND:x\r\n";
const std::string s_kNoEnd = "BEGIN:VCARD\r\nFN:x\r\n";

} // namespace

TEST( CardTest, CardContainsLinesBetweenBeginAndEnd )
{
    const LogCapture log;
    PimVCardParser parser( "BEGIN:VCARD\r\nVERSION:3.0\r\nitem1.TEL;TYPE=HOME:1\r\nend : vcard\r\nX" );
    const CardData expected = { { "", "VERSION", {}, { "3.0" } }, { "item1", "TEL", { { "TYPE", "HOME" } }, { "1" } } };
    EXPECT_EQ( expected, Take( parser.ParseVCard() ) );
    EXPECT_EQ( u'X', NextChar( parser ) );
    EXPECT_EQ( "", TextOf( log ) );
}

TEST( CardTest, CardWithoutPropertiesIsEmpty )
{
    PimVCardParser parser = ParserOf( s_kEmpty );
    EXPECT_EQ( CardData(), Take( parser.ParseVCard() ) );
}

TEST( CardTest, CardsFollowEachOther )
{
    PimVCardParser parser = ParserOf( s_kA + "\r\n" + s_kB );
    EXPECT_EQ( Card( "A" ), Take( parser.ParseVCard() ) );
    EXPECT_EQ( Card( "B" ), Take( parser.ParseVCard() ) );
}

TEST( CardTest, CardThatFailsIsNull )
{
    const std::string texts[] = { "",       "\r\n" + s_kA, " " + s_kA,  "BEGIN:x\r\nEND:VCARD\r\n",
                                  s_kNoEnd, s_kBroken,     s_kWrongEnd, "BEGIN:VCARD\r\nFN:a\r\nEND:VCARD;\r\n" };
    for ( const std::string& text : texts )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser = ParserOf( text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseVCard() ) );
        EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( CardTest, CardAfterOneThatFailedFailsToo )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( s_kWrongEnd + s_kA );
    EXPECT_EQ( std::nullopt, Take( parser.ParseVCard() ) );
    EXPECT_EQ( u'B', NextChar( parser ) );
    EXPECT_EQ( std::nullopt, Take( parser.ParseVCard() ) );
}

// ParseVCards

namespace
{

struct Row
{
    const char* m_name;
    std::string m_text;
    std::vector<CardData> m_cards;
    /// The number of cards that failed according to the log.
    int m_failures;
};

long FailuresIn( const LogCapture& a_log )
{
    const Report failure{ "ParseVCards()", "Could not parse vCard..." };
    const std::vector<Report> reports = ReportsOf( a_log );
    return std::count( reports.begin(), reports.end(), failure );
}

void ExpectCards( const std::vector<Row>& a_rows )
{
    for ( const Row& row : a_rows )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser = ParserOf( row.m_text );
        EXPECT_EQ( row.m_cards, Take( parser.ParseVCards() ) );
        EXPECT_EQ( row.m_failures, FailuresIn( log ) );
        EXPECT_EQ( row.m_failures == 0, ReportsOf( log ).empty() );
        EXPECT_EQ( 0, PimVCardParserInspector( parser ).ErrorReported() );
        const QString timing = QStringLiteral( "[PVCP] : %1 vCards parsed in: " ).arg( row.m_cards.size() );
        EXPECT_TRUE( log.Messages().last().m_text.startsWith( timing ) );
    }
}

} // namespace

TEST( WholeTextsTest, GoodTextsYieldAllCardsWithoutReport )
{
    const std::vector<Row> rows = {
        { "empty text", "", {}, 0 },
        { "one card", s_kA, { Card( "A" ) }, 0 },
        { "two cards", s_kA + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "empty card", s_kEmpty + s_kA, { CardData(), Card( "A" ) }, 0 },
        { "blank lines between", s_kA + "\r\n\r\n" + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "blank lines at the end", s_kA + "\r\n\r\n", { Card( "A" ) }, 0 },
        { "blanks in blank lines", s_kA + "  \r\n\t\r\n" + s_kB + " \r\n", { Card( "A" ), Card( "B" ) }, 0 },
        { "letter case", "begin:vcard\r\nFN:A\r\nend:vcard\r\n" + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "dressed BEGIN", s_kA + "g.BEGIN;x=y: VCARD\r\nEND:VCARD\r\n", { Card( "A" ), CardData() }, 0 },
        { "byte order mark", "\uFEFF" + s_kA, { Card( "A" ) }, 0 },
        { "NUL", s_kA + std::string( 1, '\0' ) + s_kB, { Card( "A" ) }, 0 },
        { "one character behind", s_kA + "X", { Card( "A" ) }, 0 },
    };
    ExpectCards( rows );
}

// A line ending includes all line breaks that follow it, and blanks after it are folds. Only a backslash, which is lost
// at the end of the line ending's run, can make such a character the look-ahead between two cards.
TEST( WholeTextsTest, WhiteSpaceBetweenCardsIsSkipped )
{
    const std::vector<Row> rows = {
        { "blank", s_kA + "\\ " + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "tab", s_kA + "\\\t" + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "line feed", s_kA + "\\\n" + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "carriage return", s_kA + "\\\r" + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "all", s_kA + "\\ \t \n\r\n\n" + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "to the end", s_kA + "\\ \t ", { Card( "A" ) }, 0 },
        { "last character behind it", s_kA + "\\ X", { Card( "A" ) }, 0 },
        { "form feed is none", s_kA + "\\ \f" + s_kB, { Card( "A" ), Card( "B" ) }, 1 },
    };
    ExpectCards( rows );
}

TEST( WholeTextsTest, WhiteSpaceBeforeFirstCardIsOneFailureOrMore )
{
    const std::vector<Row> rows = {
        { "blank only", " ", {}, 1 },
        { "line end only", "\r\n", {}, 1 },
        { "white space only", "\t \r\n\r\n \r\n", {}, 1 },
        { "line feeds only", "\n\n", {}, 1 },
        { "line end", "\r\n" + s_kA, { Card( "A" ) }, 1 },
        { "line ends", "\r\n\r\n\r\n" + s_kA, { Card( "A" ) }, 1 },
        { "blank", " " + s_kA, { Card( "A" ) }, 1 },
        { "blanks", " \t " + s_kA, { Card( "A" ) }, 3 },
    };
    ExpectCards( rows );
}

TEST( RecoveryTest, CardsAroundBrokenOneAreKept )
{
    const std::vector<Row> rows = {
        { "broken first", s_kBroken + s_kA + s_kB, { Card( "A" ), Card( "B" ) }, 1 },
        { "broken in the middle", s_kA + s_kBroken + s_kB, { Card( "A" ), Card( "B" ) }, 1 },
        { "broken last", s_kA + s_kB + s_kBroken, { Card( "A" ), Card( "B" ) }, 1 },
        { "broken alone", s_kBroken, {}, 1 },
        { "broken twice", s_kBroken + s_kBroken + s_kA, { Card( "A" ) }, 2 },
        { "broken in turns", s_kBroken + s_kA + s_kBroken + s_kB + s_kBroken, { Card( "A" ), Card( "B" ) }, 3 },
        { "other lines first", "junk\r\nmore junk\r\n" + s_kA, { Card( "A" ) }, 1 },
        { "other lines between", s_kA + "junk\r\nmore junk\r\n" + s_kB, { Card( "A" ), Card( "B" ) }, 1 },
        { "blank lines between", s_kBroken + "\r\n\r\n" + s_kA, { Card( "A" ) }, 1 },
        { "multi-byte characters before",
          "BEGIN:VCARD\r\nFN:\u00E9\u540D\U0001F600\x01\u00E9\r\n" + s_kA,
          { Card( "A" ) },
          1 },
    };
    ExpectCards( rows );
}

TEST( RecoveryTest, BeginLineIsFoundInAnyLetterCase )
{
    const std::vector<Row> rows = {
        { "lower case", s_kBroken + "begin:vcard\r\nFN:A\r\nEND:VCARD\r\n", { Card( "A" ) }, 1 },
        { "blanks and tabs", s_kBroken + "Begin \t: \tvCard\r\nFN:A\r\nEND:VCARD\r\n", { Card( "A" ) }, 1 },
        { "group", s_kBroken + "item1.BEGIN:VCARD\r\nFN:A\r\nEND:VCARD\r\n", { Card( "A" ) }, 1 },
        { "parameters hide it", s_kBroken + "BEGIN;x=y:VCARD\r\nFN:A\r\nEND:VCARD\r\n" + s_kB, { Card( "B" ) }, 1 },
    };
    ExpectCards( rows );
}

TEST( RecoveryTest, BeginInsideLineIsFoundAndRefused )
{
    const std::vector<Row> rows = {
        { "in a value", s_kBroken + "NOTE:BEGIN:VCARD\r\nX\r\n" + s_kA, { Card( "A" ) }, 2 },
        { "longer value", s_kBroken + "BEGIN:VCARDS\r\nX\r\n" + s_kA, { Card( "A" ) }, 2 },
        { "next card is passed over", s_kBroken + "NOTE:BEGIN:VCARD\r\n" + s_kA + s_kB, { Card( "B" ) }, 2 },
    };
    ExpectCards( rows );
}

// The search begins after the look-ahead, which is already the B of the next line.
TEST( RecoveryTest, CardDirectlyAfterRefusedLineIsSkipped )
{
    const std::vector<Row> rows = {
        { "wrong END", s_kWrongEnd + s_kA + s_kB, { Card( "B" ) }, 1 },
        { "wrong END and blank line", s_kWrongEnd + "\r\n" + s_kA + s_kB, { Card( "B" ) }, 1 },
        { "wrong END and another line", s_kWrongEnd + "X\r\n" + s_kA + s_kB, { Card( "A" ), Card( "B" ) }, 1 },
        { "wrong END, then the last card", s_kA + s_kWrongEnd + s_kB, { Card( "A" ) }, 1 },
        { "END of two values", "BEGIN:VCARD\r\nEND:VCARD;\r\n" + s_kA + s_kB, { Card( "B" ) }, 1 },
        { "wrong BEGIN", "BEGIN:x\r\n" + s_kA + s_kB, { Card( "B" ) }, 1 },
        { "wrong BEGIN of a whole card", "BEGIN:x\r\nFN:x\r\nEND:VCARD\r\n" + s_kA, { Card( "A" ) }, 1 },
    };
    ExpectCards( rows );
}

TEST( RecoveryTest, BeginInLastLineIsNotFound )
{
    const std::vector<Row> rows = {
        { "without line end", s_kBroken + "BEGIN:VCARD", {}, 1 },
        { "with line end", s_kBroken + "BEGIN:VCARD\r\n", {}, 1 },
        { "one character behind", s_kBroken + "BEGIN:VCARD\r\nX", {}, 2 },
        { "END behind", s_kBroken + s_kEmpty, { CardData() }, 1 },
        { "alone", "X\r\nBEGIN:VCARD\r\n", {}, 1 },
    };
    ExpectCards( rows );
}

TEST( RecoveryTest, BlanksAfterRecoveryAreNotSkipped )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( "FN:x=\r\n \t" + s_kA );
    EXPECT_EQ( std::vector<CardData>{ Card( "A" ) }, Take( parser.ParseVCards() ) );
    EXPECT_EQ( 2, FailuresIn( log ) );
    ASSERT_EQ( 8U, ReportsOf( log ).size() );
    EXPECT_EQ( "ParseStart()", ReportsOf( log ).at( 0 ).m_label );
    EXPECT_EQ( ( Report{ "ParseGroup()", "Found illegal character...", "", R"('\x9')" } ), ReportsOf( log ).at( 3 ) );
    EXPECT_EQ( ( std::vector<int>{ 2, 2, 2, 2, 2, 2, 2, 2 } ), LineNumbersOf( log ) );
}

TEST( RecoveryTest, CardWithoutEndAbsorbsNextCard )
{
    const CardData both = { { "", "FN", {}, { "x" } }, { "", "BEGIN", {}, { "VCARD" } }, { "", "FN", {}, { "A" } } };
    const std::vector<Row> rows = {
        { "next card", s_kNoEnd + s_kA, { both }, 0 },
        { "next card only", s_kNoEnd + s_kA + s_kB, { both, Card( "B" ) }, 0 },
        { "next card has the wrong END", s_kNoEnd + s_kWrongEnd + "X\r\n" + s_kB, { Card( "B" ) }, 1 },
        { "next card is broken", s_kNoEnd + s_kBroken + s_kB, { Card( "B" ) }, 1 },
        { "text ends", s_kA + s_kNoEnd, { Card( "A" ) }, 1 },
        { "text ends without line end", s_kA + "BEGIN:VCARD\r\nFN:x\r\nEND:VCARD", { Card( "A" ) }, 1 },
    };
    ExpectCards( rows );
}

TEST( RecoveryTest, LineNumberIsRightAgain )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( s_kA + s_kBroken + s_kBroken + s_kB + "\r\n" + s_kNoEnd );
    EXPECT_EQ( ( std::vector<CardData>{ Card( "A" ), Card( "B" ) } ), Take( parser.ParseVCards() ) );
    EXPECT_EQ( ( std::vector<int>{ 5, 5, 5, 5, 5, 8, 8, 8, 8, 8, 16, 16, 16, 16, 16 } ), LineNumbersOf( log ) );
}

TEST( RecoveryTest, SearchForNextCardDropsTokensAndLookAhead )
{
    const LogCapture log;
    PimVCardParser parser( "BEGIN:VCARD\r\nFN;a!:x\r\nEND:VCARD\r\n" );
    EXPECT_EQ( std::vector<CardData>(), Take( parser.ParseVCards() ) );
    const PimVCardParserInspector inspector( parser );
    const PimVCardLexer& lexer = inspector.Lexer();
    EXPECT_EQ( QString(), lexer.m_token );
    EXPECT_EQ( QString(), lexer.m_prevToken );
    EXPECT_EQ( QChar(), lexer.m_nextChar );
}

TEST( RecoveryTest, MarkIsRemovedWhetherOrNotThereIsANextCard )
{
    for ( const std::string& next : { std::string(), s_kA + s_kB } )
    {
        SCOPED_TRACE( next );
        const LogCapture log;
        PimVCardParser parser = ParserOf( s_kBroken + next );
        EXPECT_TRUE( Take( parser.ParseVCards() ).has_value() );
        EXPECT_EQ( 0, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( RecoveryTest, EncodingOutlivesRecovery )
{
    const LogCapture log;
    PimVCardParser parser( "BEGIN:VCARD\r\nN;ENCODING=QUOTED-PRINTABLE;:x\r\nBEGIN:VCARD=\r\nFN:x\r\nY\r\n" );
    EXPECT_EQ( std::vector<CardData>(), Take( parser.ParseVCards() ) );
    EXPECT_TRUE( log.Texts( QtDebugMsg ).contains( QStringLiteral( "      \"VCARDFN:x\"" ) ) );
}

TEST( RecoveryTest, EncodingOutlivesRecoveryToEndOfText )
{
    const LogCapture log;
    PimVCardParser parser( "BEGIN:VCARD\r\nN;ENCODING=b;:x\r\n" );
    EXPECT_EQ( std::vector<CardData>(), Take( parser.ParseVCards() ) );
    EXPECT_TRUE( PimVCardParserInspector( parser ).IsBase64() );
}

TEST( RecoveryTest, MarkedParserRecoversWithFirstFailure )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( "X\r\n" + s_kA + s_kB );
    EXPECT_FALSE( parser.ParseStart() );
    EXPECT_EQ( std::vector<CardData>{ Card( "B" ) }, Take( parser.ParseVCards() ) );
    EXPECT_EQ( 1, FailuresIn( log ) );
}

// The way back counts characters. It ends two bytes inside this line, which has two characters of two bytes.
TEST( RecoveryTest, MultiByteCharactersMakeTheWayBackTooShort )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( "!\r\nNOTE:\u00E9\u00E9BEGIN:VCARD\r\nX\r\n" + s_kA );
    EXPECT_EQ( std::vector<CardData>{ Card( "A" ) }, Take( parser.ParseVCards() ) );
    EXPECT_TRUE( log.Texts( QtDebugMsg ).contains( QStringLiteral( "   Name:   \"TE\"" ) ) );
}

// Line endings other than CR LF

namespace
{

const std::string s_kBrokenLf = "BEGIN:VCARD\nFN:\x01"
                                "A\nEND:VCARD\n";

std::vector<Report> ChainOf( std::vector<Report> a_inner )
{
    a_inner.push_back( { "ParseStart()", "Could not parse BEGIN property..." } );
    a_inner.push_back( { "ParseVCard()", "Could not parse BEGIN property..." } );
    a_inner.push_back( { "ParseVCards()", "Could not parse vCard..." } );
    return a_inner;
}

const std::vector<Report> s_kNoLineEnd =
    ChainOf( { { "ParseProperty()", "Expected CRLF token...", R"("\\A\\R\\z")" } } );
const std::vector<Report> s_kLineFeed = ChainOf( { { "ParseGroup()", "Found illegal character...", "", R"('\xa')" },
                                                   { "ParseProperty()", "Expected property GROUP/NAME token..." } } );

void Append( std::vector<Report>& a_reports, const std::vector<Report>& a_more )
{
    a_reports.insert( a_reports.end(), a_more.begin(), a_more.end() );
}

} // namespace

TEST( LineEndsTest, OtherLineEndingsHaveTheseResults )
{
    const std::vector<Row> rows = {
        { "LF, one card", CardText( "A", "\n" ), {}, 1 },
        { "LF, two cards", CardText( "A", "\n" ) + CardText( "B", "\n" ), {}, 1 },
        { "LF, line feed first", "\n" + CardText( "A", "\n" ), {}, 3 },
        { "LF, one byte on twice", "\n!" + CardText( "A", "\n" ), {}, 4 },
        { "LF, broken card first", s_kBrokenLf + CardText( "B", "\n" ) + CardText( "C", "\n" ), {}, 3 },
        { "LF, broken card last", CardText( "B", "\n" ) + CardText( "C", "\n" ) + s_kBrokenLf, {}, 1 },
        { "LF, three broken cards", s_kBrokenLf + s_kBrokenLf + s_kBrokenLf, {}, 5 },
        { "LF broken between CR LF", s_kA + s_kBrokenLf + s_kB, { Card( "A" ), Card( "B" ) }, 1 },
        { "LF takes CR LF card in", CardText( "A", "\n" ) + s_kB + s_kC, { Card( "C" ) }, 1 },
        { "CR LF before LF", s_kA + CardText( "B", "\n" ), { Card( "A" ) }, 1 },
        { "CR, two cards", CardText( "A", "\r" ) + CardText( "B", "\r" ), { Card( "A" ), Card( "B" ) }, 0 },
        { "CR, broken card is the last",
          CardText( "A", "\r" ) + "BEGIN:VCARD\rFN :x\rEND:VCARD\r" + CardText( "B", "\r" ),
          { Card( "A" ) },
          1 },
        { "CR and CR LF", CardText( "A", "\r" ) + s_kB, { Card( "A" ), Card( "B" ) }, 0 },
        { "CR broken before CR LF", "BEGIN:VCARD\rFN :x\rEND:VCARD\r" + s_kB + s_kC, { Card( "C" ) }, 4 },
        { "vertical tab", CardText( "A", "\v" ) + CardText( "B", "\f" ), { Card( "A" ), Card( "B" ) }, 0 },
    };
    ExpectCards( rows );
}

// The steps, worked out by hand: The value of the first BEGIN continues over the line feeds up to U+0001. The next
// BEGIN line is line 4. The way back to it, its length plus 2, ends on the line feed before it, and the line number
// stays 3. That line feed is not a name, so the next recovery returns to the same position. The parser then moves one
// byte further, to the B of BEGIN, whose value continues to the end of the text.
TEST( LineEndsTest, RecoveryToSamePositionAdvancesOneByte )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( s_kBrokenLf + CardText( "B", "\n" ) + CardText( "C", "\n" ) );
    EXPECT_EQ( std::vector<CardData>(), Take( parser.ParseVCards() ) );
    std::vector<Report> expected = s_kNoLineEnd;
    Append( expected, s_kLineFeed );
    Append( expected, s_kNoLineEnd );
    EXPECT_EQ( expected, ReportsOf( log ) );
    EXPECT_EQ( ( std::vector<int>{ 1, 1, 1, 1, 3, 3, 3, 3, 3, 3, 3, 3, 3 } ), LineNumbersOf( log ) );
}

TEST( LineEndsTest, EachBrokenCardIsVisited )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( s_kBrokenLf + s_kBrokenLf + s_kBrokenLf );
    EXPECT_EQ( std::vector<CardData>(), Take( parser.ParseVCards() ) );
    std::vector<Report> expected = s_kNoLineEnd;
    for ( int i = 0; i < 2; ++i )
    {
        Append( expected, s_kLineFeed );
        Append( expected, s_kNoLineEnd );
    }
    EXPECT_EQ( expected, ReportsOf( log ) );
    EXPECT_EQ( ( std::vector<int>{ 1, 1, 1, 1, 3, 3, 3, 3, 3, 3, 3, 3, 3, 5, 5, 5, 5, 5, 5, 5, 5, 5 } ),
               LineNumbersOf( log ) );
}

// No recovery precedes the first one, so it may lead to the very start of the text.
TEST( LineEndsTest, FirstRecoveryMayLeadToStart )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( "\n" + CardText( "A", "\n" ) );
    EXPECT_EQ( std::vector<CardData>(), Take( parser.ParseVCards() ) );
    std::vector<Report> expected = s_kLineFeed;
    Append( expected, s_kLineFeed );
    Append( expected, s_kNoLineEnd );
    EXPECT_EQ( expected, ReportsOf( log ) );
}

// A base64 value ends at a line feed. With the encoding left over from the previous card, this BEGIN line is valid.
TEST( LineEndsTest, LeftoverEncodingAppliesToNextCard )
{
    const std::vector<Row> rows = {
        { "left over",
          "BEGIN:VCARD\r\nPHOTO;ENCODING=b;:x\r\nEND:VCARD\r\nBEGIN:VCARD\nFN:A\r\nEND:VCARD\r\n",
          { Card( "A" ) },
          2 },
        { "not left over",
          "BEGIN:VCARD\r\nPHOTO;ENCODING=x;:x\r\nEND:VCARD\r\nBEGIN:VCARD\nFN:A\r\nEND:VCARD\r\n",
          {},
          3 },
    };
    ExpectCards( rows );
}

// Large texts

namespace
{

struct LargeText
{
    std::string m_text;
    std::vector<CardData> m_cards;
    int m_failures = 0;
};

/// Cards with names of one-byte to four-byte characters, which cross the end of each block differently, and a different
/// broken card after every sixth one.
LargeText MakeLargeText( size_t a_size )
{
    const std::string broken[] = { s_kBroken, "BEGIN:VCARD\r\nFN:\u540D\x01\u540D\r\nEND:VCARD\r\n",
                                   "BEGIN:VCARD\r\nTEL;\u00E9:1\r\nFN:\U0001F600\r\nEND:VCARD\r\n" };
    LargeText result;
    for ( size_t i = 0; result.m_text.size() < a_size; ++i )
    {
        const std::string name = "Zo\u00EB \u540D\u540D \U0001F600 " + std::string( i % 5, 'x' ) + std::to_string( i );
        result.m_text += CardText( name );
        result.m_cards.push_back( Card( name ) );
        if ( i % 6 == 5 )
        {
            result.m_text += broken[i / 6 % 3];
            ++result.m_failures;
        }
    }
    return result;
}

} // namespace

TEST( LargeTextsTest, CardsAroundBrokenOnesAreKept )
{
    for ( const size_t size : { 15000U, 17000U, 33000U, 66000U, 200000U } )
    {
        SCOPED_TRACE( size );
        const LargeText large = MakeLargeText( size );
        const LogCapture log;
        PimVCardParser parser = ParserOf( large.m_text );
        EXPECT_EQ( large.m_cards, Take( parser.ParseVCards() ) );
        EXPECT_LT( 10, large.m_failures );
        EXPECT_EQ( large.m_failures, FailuresIn( log ) );
    }
}

TEST( LargeTextsTest, RecoveryAfterLongValueIsExact )
{
    for ( const size_t length : { 16000U, 16383U, 16384U, 70000U } )
    {
        for ( const std::string character : { "x", "\u00E9", "\u540D", "\U0001F600" } )
        {
            SCOPED_TRACE( character + std::to_string( length ) );
            std::string value;
            while ( value.size() < length )
                value += character;
            const LogCapture log;
            PimVCardParser parser = ParserOf( CardText( value ).append( s_kBroken ).append( s_kB ) );
            EXPECT_EQ( ( std::vector<CardData>{ Card( value ), Card( "B" ) } ), Take( parser.ParseVCards() ) );
            EXPECT_EQ( 1, FailuresIn( log ) );
        }
    }
}

TEST( LargeTextsTest, HundredsOfCardsAreReturnedInOrder )
{
    std::string text;
    std::vector<CardData> expected;
    for ( int i = 0; i < 400; ++i )
    {
        text += CardText( std::to_string( i ) );
        expected.push_back( Card( std::to_string( i ) ) );
    }
    const LogCapture log;
    PimVCardParser parser = ParserOf( text );
    EXPECT_EQ( expected, Take( parser.ParseVCards() ) );
    EXPECT_EQ( 1, log.Messages().size() );
}

// Ownership

TEST( OwnershipTest, CallerMayChangeArrayAfterConstruction )
{
    QByteArray bytes = QByteArray::fromStdString( s_kA );
    PimVCardParser parser( bytes );
    bytes.fill( '!' );
    EXPECT_EQ( Card( "A" ), Take( parser.ParseVCard() ) );
    EXPECT_EQ( QByteArray( static_cast<int>( s_kA.size() ), '!' ), bytes );
}

TEST( OwnershipTest, CallerMayDropArrayAfterConstruction )
{
    auto bytes = std::make_unique<QByteArray>( QByteArray::fromStdString( s_kA ) );
    PimVCardParser parser( *bytes );
    bytes.reset();
    EXPECT_EQ( Card( "A" ), Take( parser.ParseVCard() ) );
}

TEST( OwnershipTest, CallerMayDropRawDataAfterConstruction )
{
    auto bytes = std::make_unique<std::string>( s_kA );
    PimVCardParser parser( QByteArray::fromRawData( bytes->data(), static_cast<int>( bytes->size() ) ) );
    bytes.reset();
    EXPECT_EQ( Card( "A" ), Take( parser.ParseVCard() ) );
}

// This book is copied during preparation, because its notes are folded, and is longer than any block that is read at
// once.
TEST( OwnershipTest, TextStaysWholeWhileCardsAreParsed )
{
    std::string text;
    std::vector<CardData> expected;
    for ( int i = 0; i < 4000; ++i )
    {
        text += i % 100 == 99 ? s_kBroken : "BEGIN:VCARD\r\nNOTE:folded\r\n  note\r\nEND:VCARD\r\n";
        if ( i % 100 != 99 )
            expected.push_back( { { "", "NOTE", {}, { "foldednote" } } } );
    }
    const LogCapture log;
    PimVCardParser parser = ParserOf( text );
    const QByteArray prepared = PimVCardParserInspector( parser ).Data();
    ASSERT_LT( 100000, prepared.size() );
    EXPECT_EQ( expected, Take( parser.ParseVCards() ) );
    EXPECT_EQ( prepared, PimVCardParserInspector( parser ).Data() );
}

TEST( OwnershipTest, CardsOutliveParser )
{
    auto parser = std::make_unique<PimVCardParser>( QByteArray::fromStdString( s_kA + s_kB ) );
    const LogCapture log;
    QList<PimVCard*>* const cards = parser->ParseVCards();
    parser.reset();
    EXPECT_EQ( ( std::vector<CardData>{ Card( "A" ), Card( "B" ) } ), Take( cards ) );
}

TEST( OwnershipTest, UnusedParserIsDropped )
{
    const PimVCardParser parser = ParserOf( s_kA );
    EXPECT_EQ( s_kA, PimVCardParserInspector( parser ).Data().toStdString() );
}

TEST( WholeTextsTest, SecondCallReturnsNothing )
{
    const LogCapture log;
    PimVCardParser parser = ParserOf( s_kA );
    EXPECT_EQ( std::vector<CardData>{ Card( "A" ) }, Take( parser.ParseVCards() ) );
    EXPECT_EQ( std::vector<CardData>(), Take( parser.ParseVCards() ) );
    EXPECT_EQ( 2, log.Messages().size() );
}

// Random texts

namespace
{

const std::vector<std::string> s_kPieces = {
    "BEGIN:VCARD\r\n",
    "BEGIN:VCARD\n",
    "BEGIN:VCARD\r",
    "END:VCARD\r\n",
    "END:VCARD\n",
    "END:x\r\n",
    "FN:a\r\n",
    "TEL;HOME:1\r\n",
    "begin : vcard",
    "end:vcard",
    "BEGIN",
    "VCARD",
    "item1.",
    ";ENCODING=b",
    ";ENCODING=QUOTED-PRINTABLE",
    ";TYPE=\"a b\"",
    "=\r\n",
    "=0D=0A=\r\n",
    "\r\n",
    "\r",
    "\n",
    "\v",
    " ",
    "\t",
    ":",
    ";",
    ",",
    "=",
    ".",
    "\"",
    "\\",
    "A",
    "-1",
    "\u00E9",
    "\u540D",
    "\U0001F600",
    "\uFEFF",
    "\x01",
    "\x7F",
    "\xFF",
};

/// A few pieces. A BEGIN line before them and an END line after them are each as likely as not.
std::string RandomText( std::mt19937& a_random )
{
    std::string text = a_random() % 2 == 0 ? "" : s_kPieces.front();
    for ( size_t count = a_random() % 16; count > 0; --count )
        text += s_kPieces[a_random() % s_kPieces.size()];
    return text + ( a_random() % 2 == 0 ? "" : "\r\nEND:VCARD\r\n" );
}

bool IsComplete( const PropertyData& a_property )
{
    return !a_property.m_name.empty() && !a_property.m_values.empty();
}

} // namespace

TEST( RandomTextsTest, CardsAreCompleteAndTheSameTwice )
{
    std::mt19937 random( 20231 );
    size_t cards = 0;
    for ( int i = 0; i < 2000; ++i )
    {
        const std::string text = RandomText( random );
        SCOPED_TRACE( Shown( text ) );
        LogCapture log;
        const auto first = Take( ParserOf( text ).ParseVCards() );
        const std::vector<Report> reports = ReportsOf( log );
        log.Clear();
        EXPECT_EQ( first, Take( ParserOf( text ).ParseVCards() ) );
        EXPECT_EQ( reports, ReportsOf( log ) );
        ASSERT_TRUE( first.has_value() );
        for ( const CardData& card : *first )
            EXPECT_TRUE( std::all_of( card.begin(), card.end(), IsComplete ) );
        cards += first->size();
    }
    EXPECT_LT( 100U, cards ) << "too few texts hold a card";
}

} // namespace PimManager::vCard
