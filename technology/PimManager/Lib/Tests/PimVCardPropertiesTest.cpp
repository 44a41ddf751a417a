#include "PimVCardParser.h"
#include "PimVCardTestReports.h"
#include "PimVCardTestResults.h"
#include "PimVCardVocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace PimManager::vCard
{

namespace
{

const Report s_kListFailed{ "ParseProperties()", "Could not parse property..." };
const Report s_kNoGroupOrName{ "ParseProperty()", "Expected property GROUP/NAME token..." };

Report IllegalInGroup( const std::string& a_illegal )
{
    return { "ParseGroup()", "Found illegal character...", "", a_illegal };
}

std::vector<std::string> Labels( const std::vector<Report>& a_reports )
{
    std::vector<std::string> labels( a_reports.size() );
    std::transform( a_reports.begin(), a_reports.end(), labels.begin(),
                    []( const Report& a_report ) { return a_report.m_label; } );
    return labels;
}

} // namespace

// ParseGroup

namespace
{

struct GroupRow
{
    const char* m_text;
    std::string m_group;
    std::string m_name;
    bool m_isBoundary;
    char16_t m_next;
};

const std::vector<GroupRow> s_kGroups = {
    { "item1.ADR;", "item1", "ADR", false, u';' },
    { "item1.item2.ADR;", "item1.item2", "ADR", false, u';' },
    { "a.b.c.TEL:", "a.b.c", "TEL", false, u':' },
    { "ADR;", "", "ADR", false, u';' },
    { "X-ABC-1:", "", "X-ABC-1", false, u':' },
    { "-.-:", "-", "-", false, u':' },
    { ".ADR:", "", "ADR", false, u':' },
    { "..ADR:", ".", "ADR", false, u':' },
    { "a..ADR:", "a.", "ADR", false, u':' },
    { "item1.:", "item1", "", false, u':' },
    { R"(item1\.ADR\;)", "item1", "ADR", false, u';' },
    { ":", "", "", false, u':' },
    { ";", "", "", false, u';' },
    { "BEGIN:", "", "BEGIN", true, u':' },
    { "END;", "", "END", true, u';' },
    { "begin :", "", "begin", true, u' ' },
    { "eNd\t:", "", "eNd", true, u'\t' },
    { "BEGIN", "", "BEGIN", true, u'\0' },
    { "END=", "", "END", true, u'=' },
    { "item1.END :", "item1", "END", true, u' ' },
    { "a.b.Begin x", "a.b", "Begin", true, u' ' },
    { "END.TEL:", "END", "TEL", false, u':' },
    { "BEGIN.END\r", "BEGIN", "END", true, u'\r' },
    { "BEGINX:", "", "BEGINX", false, u':' },
    { "XEND:", "", "XEND", false, u':' },
};

struct BadGroupRow
{
    const char* m_text;
    std::string m_illegal;
};

const std::vector<BadGroupRow> s_kBadGroups = {
    { "", R"('\x0')" },         { "ADR", R"('\x0')" },         { "ADR :", "' '" },       { "ADR\t:", R"('\x9')" },
    { "ADR\r\n", R"('\xd')" },  { "TEL=x:", "'='" },           { "TEL,x:", "','" },      { "item1 .ADR:", "' '" },
    { "item1. ADR:", "' '" },   { "item1.ADR :", "' '" },      { "item1.", R"('\x0')" }, { " ADR:", "' '" },
    { "\r\nADR:", R"('\xd')" }, { "\u00C4B:", R"('\u00c4')" }, { "A_B:", "'_'" },        { "BEGIN.X ", "' '" },
    { "BEGINX :", "' '" },
};

} // namespace

TEST( GroupTest, GroupOmitsItsLastDot )
{
    for ( const GroupRow& row : s_kGroups )
    {
        SCOPED_TRACE( row.m_text );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        bool isBoundary = false;
        EXPECT_EQ( row.m_group, parser.ParseGroup( isBoundary ).toStdString() );
        EXPECT_EQ( row.m_isBoundary, isBoundary );
        EXPECT_EQ( row.m_name, PimVCardParserInspector( parser ).Lexer().m_prevToken.toStdString() );
        EXPECT_EQ( row.m_next, NextChar( parser ) );
        EXPECT_EQ( "", TextOf( log ) );
    }
}

TEST( GroupTest, OtherCharacterAfterNameIsIllegal )
{
    for ( const BadGroupRow& row : s_kBadGroups )
    {
        SCOPED_TRACE( row.m_text );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        bool isBoundary = false;
        EXPECT_EQ( "", parser.ParseGroup( isBoundary ).toStdString() );
        EXPECT_FALSE( isBoundary );
        EXPECT_EQ( std::vector<Report>{ IllegalInGroup( row.m_illegal ) }, ReportsOf( log ) );
        EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

// ParseProperty

namespace
{

struct LineRow
{
    const char* m_name;
    const char* m_text;
    PropertyData m_property;
    char16_t m_next = u'\0';
};

const std::vector<LineRow> s_kLines = {
    { "plain", "FN:Jorin Talvek\r\n", { "", "FN", {}, { "Jorin Talvek" } } },
    { "group", "item1.TEL:1\r\n", { "item1", "TEL", {}, { "1" } } },
    { "groups", "item1.item2.TEL:1\r\n", { "item1.item2", "TEL", {}, { "1" } } },
    { "empty value", "NOTE:\r\n", { "", "NOTE", {}, { "" } } },
    { "all parts",
      "item1.ADR;type=WORK,pref;HOME;label=\"a:b\":;;Road\\, 7;Town;\r\n",
      { "item1",
        "ADR",
        { { "type", "WORK,pref" }, { "", "HOME" }, { "label", "\"a:b\"" } },
        { "", "", "Road, 7", "Town", "" } } },
    { "extension",
      "X-MS-OL-DESIGN;CHARSET=utf-8:<a b=\"c\"/>\r\n",
      { "", "X-MS-OL-DESIGN", { { "CHARSET", "utf-8" } }, { "<a b=\"c\"/>" } } },
    { "letter case", "fN;tYpE=x:Y\r\n", { "", "fN", { { "tYpE", "x" } }, { "Y" } } },
    { "blank behind the colon", "FN: \tJo\r\n", { "", "FN", {}, { " \tJo" } } },
    { "BEGIN", "BEGIN:VCARD\r\n", { "", "BEGIN", {}, { "VCARD" } } },
    { "BEGIN with blanks", "BEGIN  :     \tVCARD\r\n", { "", "BEGIN", {}, { "VCARD" } } },
    { "begin with blanks", "begin\t : vcard\r\n", { "", "begin", {}, { "vcard" } } },
    { "END with blanks", "END\t:  VCARD\r\n", { "", "END", {}, { "VCARD" } } },
    { "eNd with blanks", "eNd :\tvCard\r\n", { "", "eNd", {}, { "vCard" } } },
    { "END in a group", "item1.END : VCARD\r\n", { "item1", "END", {}, { "VCARD" } } },
    { "END with parameters", "END;a=b;c: \t VCARD\r\n", { "", "END", { { "a", "b" }, { "", "c" } }, { "VCARD" } } },
    { "blank behind the value", "END:VCARD \r\n", { "", "END", {}, { "VCARD " } } },
    { "soft line breaks",
      "N;ENCODING=QUOTED-PRINTABLE:=4B=\r\n=75;=\r\nx\r\n",
      { "", "N", { { "ENCODING", "QUOTED-PRINTABLE" } }, { "=4B=75", "x" } } },
    { "base64", "PHOTO;ENCODING=b:AAA=\r\n", { "", "PHOTO", { { "ENCODING", "b" } }, { "AAA=" } } },
    { "base64 and empty line",
      "PHOTO;ENCODING=BASE64:AAA=\r\n\r\nX:1",
      { "", "PHOTO", { { "ENCODING", "BASE64" } }, { "AAA=" } },
      u'X' },
    { "next line", "FN:Jo\r\nTEL:1\r\n", { "", "FN", {}, { "Jo" } }, u'T' },
    { "empty lines", "FN:Jo\r\n\r\n\r\nTEL:1\r\n", { "", "FN", {}, { "Jo" } }, u'T' },
    { "empty lines to the end", "FN:Jo\r\n\r\n", { "", "FN", {}, { "Jo" } } },
    { "carriage return", "FN:Jo\rTEL:1\r", { "", "FN", {}, { "Jo" } }, u'T' },
    { "CR LF LF", "FN:Jo\r\n\nTEL:1\r", { "", "FN", {}, { "Jo" } }, u'T' },
    { "vertical tab", "FN:Jo\vTEL:1\r", { "", "FN", {}, { "Jo" } }, u'T' },
    { "form feed", "FN:Jo\f\fTEL:1\r", { "", "FN", {}, { "Jo" } }, u'T' },
    { "line feeds belong to the value", "FN:Jo\nTEL:1\n\r\n", { "", "FN", {}, { "Jo\nTEL:1\n" } } },
    { "base64 ends at a line feed",
      "PHOTO;ENCODING=b:AAA=\nX:1",
      { "", "PHOTO", { { "ENCODING", "b" } }, { "AAA=" } },
      u'X' },
    { "backslash before the line end", "FN:Jo\\\r\nTEL:1\r\n", { "", "FN", {}, { "Jo" } }, u'T' },
    { "backslash that begins the next line", "FN:Jo\r\n\\TEL:1\r\n", { "", "FN", {}, { "Jo" } }, u'T' },
    { "blank that begins the next line", "FN:a=\r\n b", { "", "FN", {}, { "a=" } }, u' ' },
};

} // namespace

TEST( PropertyTest, LineIsReturnedAsWritten )
{
    for ( const LineRow& row : s_kLines )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( row.m_property, Take( parser.ParseProperty() ) );
        EXPECT_EQ( row.m_next, NextChar( parser ) );
        EXPECT_EQ( "", TextOf( log ) );
        EXPECT_FALSE( PimVCardParserInspector( parser ).IsQuotedPrintable() );
        EXPECT_FALSE( PimVCardParserInspector( parser ).IsBase64() );
        EXPECT_EQ( 0, PimVCardParserInspector( parser ).ErrorReported() );
    }
}

TEST( PropertyTest, LineEndsAreCounted )
{
    struct
    {
        const char* m_text;
        int m_lineNumber;
    } const rows[] = { { "FN:a\r\n", 2 },       { "FN:a\r\n\r\n\r\n", 4 },
                       { "FN:a\r", 1 },         { "FN:a\r\n\n", 1 },
                       { "FN:a\\\r\n", 1 },     { "FN:a\nb\r\n", 2 },
                       { "FN:a\r\n b\r\n", 2 }, { "X;ENCODING=QUOTED-PRINTABLE:a=\r\nb\r\n\r\n", 4 } };
    for ( const auto& row : rows )
    {
        SCOPED_TRACE( row.m_text );
        PimVCardParser parser( row.m_text );
        EXPECT_TRUE( Take( parser.ParseProperty() ).has_value() );
        EXPECT_EQ( row.m_lineNumber, PimVCardParserInspector( parser ).Lexer().m_lineNumber );
    }
}

namespace
{

const std::vector<std::vector<const char*>> s_kBadLines = {
    // The last operation that reports, counted from the innermost, and lines for which it does.
    { "ParseGroup()", "FN :a\r\n", "item1.FN\t:a\r\n", "FN=a\r\n", "\r\n", "\r\nFN:a\r\n", " FN:a\r\n", "" },
    { "ParseParameters()", "FN;:a\r\n", "FN;a= b:c\r\n", "FN;a=\"\":b\r\n", "END;a :VCARD\r\n" },
    { "ParseValues()", "FN;ENCODING=QUOTED-PRINTABLE:a=\r\n\r\n", "FN;ENCODING=QUOTED-PRINTABLE:=" },
    { "ParseProperty()", ":a\r\n", ";a:b\r\n", "item1.:a\r\n", "BEGIN VCARD\r\n", "BEGIN\r\n:VCARD\r\n",
      "END \n:VCARD\r\n", "END\r\n", "END", "FN:a", "FN:a\nb\n", "FN:a\\nb\r\n", "FN:a\x01\r\n",
      "FN;ENCODING=b:A A\r\n" },
};

} // namespace

TEST( PropertyTest, LineThatFailsReturnsNull )
{
    for ( const std::vector<const char*>& row : s_kBadLines )
    {
        for ( size_t i = 1; i < row.size(); ++i )
        {
            SCOPED_TRACE( row[i] );
            const LogCapture log;
            PimVCardParser parser( row[i] );
            EXPECT_EQ( std::nullopt, Take( parser.ParseProperty() ) );
            std::vector<std::string> labels = Labels( ReportsOf( log ) );
            ASSERT_FALSE( labels.empty() );
            EXPECT_EQ( "ParseProperty()", labels.back() );
            EXPECT_EQ( row.front(), labels.size() > 1 ? labels[labels.size() - 2] : labels.back() );
            EXPECT_EQ( 1, PimVCardParserInspector( parser ).ErrorReported() );
        }
    }
}

TEST( PropertyTest, BlankBeforeColonIsIllegalForOtherNames )
{
    for ( const char* text : { "FN :a\r\n", "VERSION :2.1\r\n", "BEGINS :VCARD\r\n", "END.FN :a\r\n" } )
    {
        SCOPED_TRACE( text );
        const LogCapture log;
        PimVCardParser parser( text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseProperty() ) );
        EXPECT_EQ( ( std::vector<Report>{ IllegalInGroup( "' '" ), s_kNoGroupOrName } ), ReportsOf( log ) );
    }
}

TEST( PropertyTest, GoodLineOfMarkedParserFails )
{
    const LogCapture log;
    PimVCardParser parser( "!FN:a\r\n" );
    EXPECT_EQ( std::nullopt, Take( parser.ParseParameter( false ) ) );
    PimVCardParserInspector( parser ).Lexer().m_nextChar = QChar();
    EXPECT_EQ( std::nullopt, Take( parser.ParseProperty() ) );
    EXPECT_EQ( ( std::vector<std::string>{ "ParseParameter()", "ParseProperty()" } ), Labels( ReportsOf( log ) ) );
    EXPECT_EQ( s_kNoGroupOrName, ReportsOf( log ).back() );
}

TEST( PropertyTest, EncodingOfFailedLineStaysSet )
{
    const LogCapture log;
    PimVCardParser colon( "END;ENCODING=BASE64;a=b x:VCARD\r\n" );
    EXPECT_EQ( std::nullopt, Take( colon.ParseProperty() ) );
    EXPECT_TRUE( PimVCardParserInspector( colon ).IsBase64() );

    PimVCardParser values( "N;ENCODING=QUOTED-PRINTABLE:a=\r" );
    EXPECT_EQ( std::nullopt, Take( values.ParseProperty() ) );
    EXPECT_TRUE( PimVCardParserInspector( values ).IsQuotedPrintable() );
}

TEST( PropertyTest, EncodingOfLineThatFailsAfterItsValuesIsCleared )
{
    const LogCapture log;
    PimVCardParser parser( "PHOTO;ENCODING=b:A A\r\n" );
    EXPECT_EQ( std::nullopt, Take( parser.ParseProperty() ) );
    EXPECT_FALSE( PimVCardParserInspector( parser ).IsBase64() );
}

namespace
{

/// Parses a line after the parameters of a line whose value was never parsed.
std::optional<PropertyData> ParseBehind( const char* a_parameters, const char* a_line )
{
    const LogCapture log;
    PimVCardParser parser( QByteArray( a_parameters ) + ':' + a_line );
    Take( parser.ParseParameters( false ) );
    PimVCardParserInspector( parser ).Lexer().GetToken( QRegularExpression( s_kColonPattern ), true );
    return Take( parser.ParseProperty() );
}

} // namespace

TEST( PropertyTest, LeftoverEncodingAppliesToNextLine )
{
    EXPECT_EQ( ( PropertyData{ "", "FN", {}, { "ab" } } ),
               ParseBehind( ";ENCODING=QUOTED-PRINTABLE", "FN:a=\r\nb\r\n" ) );
    EXPECT_EQ( ( PropertyData{ "", "FN", {}, { "a=" } } ), ParseBehind( "", "FN:a=\r\nb\r\n" ) );
    EXPECT_EQ( ( PropertyData{ "", "FN", {}, { "a" } } ), ParseBehind( ";ENCODING=b", "FN:a\nb" ) );
    EXPECT_EQ( std::nullopt, ParseBehind( ";ENCODING=b", "FN:a b\r\n" ) );
}

TEST( PropertyTest, LeftoverEncodingConflictsWithOtherEncoding )
{
    EXPECT_EQ( std::nullopt, ParseBehind( ";ENCODING=b", "FN;ENCODING=QUOTED-PRINTABLE:a\r\n" ) );
    EXPECT_TRUE( ParseBehind( ";ENCODING=b", "FN;ENCODING=BASE64:a\r\n" ).has_value() );
}

// ParseProperties

namespace
{

struct PropertiesRow
{
    const char* m_name;
    const char* m_text;
    std::vector<std::string> m_names;
    char16_t m_next = u'\0';
};

const std::vector<PropertiesRow> s_kPropertyLists = {
    { "END only", "END:VCARD\r\n", { "END" } },
    { "lines before END", "FN:a\r\nTEL:1\r\nEND:VCARD\r\n", { "FN", "TEL", "END" } },
    { "end", "FN:a\r\nend:vcard\r\nFN:b\r\n", { "FN", "end" }, u'F' },
    { "eNd", "FN:a\r\neNd : x\r\nFN:b\r\n", { "FN", "eNd" }, u'F' },
    { "END in a group", "FN:a\r\nitem1.END:VCARD\r\nFN:b\r\n", { "FN", "END" }, u'F' },
    { "END with another value", "END:a;b\r\nFN:b\r\n", { "END" }, u'F' },
    { "END as a group", "END.FN:a\r\nEND:VCARD\r\n", { "FN", "END" } },
    { "ENDS", "ENDS:a\r\nEND:VCARD\r\n", { "ENDS", "END" } },
    { "BEGIN is a line like others", "FN:a\r\nBEGIN:VCARD\r\nFN:b\r\nEND:VCARD\r\n", { "FN", "BEGIN", "FN", "END" } },
    { "empty lines", "FN:a\r\n\r\nTEL:1\r\n\r\n\r\nEND:VCARD\r\n\r\nX", { "FN", "TEL", "END" }, u'X' },
    { "carriage returns", "FN:a\rTEL:1\r\rEND:VCARD\rX", { "FN", "TEL", "END" }, u'X' },
};

const std::vector<PropertiesRow> s_kBadPropertyLists = {
    { "empty text", "", { "ParseGroup()", "ParseProperty()", "ParseProperties()" } },
    { "no END", "FN:a\r\n", { "ParseGroup()", "ParseProperty()", "ParseProperties()" } },
    { "bad line first", "FN\r\nEND:VCARD\r\n", { "ParseGroup()", "ParseProperty()", "ParseProperties()" } },
    { "bad line last", "FN:a\r\nTEL:1\r\nEND:VCARD", { "ParseProperty()", "ParseProperties()" } },
    { "empty line first", "\r\nEND:VCARD\r\n", { "ParseGroup()", "ParseProperty()", "ParseProperties()" } },
    { "blank between lines",
      "FN:a=\r\n TEL:1\r\nEND:VCARD\r\n",
      { "ParseGroup()", "ParseProperty()", "ParseProperties()" } },
};

} // namespace

TEST( PropertiesTest, ListEndsWithFirstEndLine )
{
    for ( const PropertiesRow& row : s_kPropertyLists )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        std::vector<std::string> names;
        for ( const PropertyData& property : Take( parser.ParseProperties() ).value_or( CardData() ) )
            names.push_back( property.m_name );
        EXPECT_EQ( row.m_names, names );
        EXPECT_EQ( row.m_next, NextChar( parser ) );
        EXPECT_EQ( "", TextOf( log ) );
    }
}

TEST( PropertiesTest, LineThatFailsDropsList )
{
    for ( const PropertiesRow& row : s_kBadPropertyLists )
    {
        SCOPED_TRACE( row.m_name );
        const LogCapture log;
        PimVCardParser parser( row.m_text );
        EXPECT_EQ( std::nullopt, Take( parser.ParseProperties() ) );
        EXPECT_EQ( row.m_names, Labels( ReportsOf( log ) ) );
        EXPECT_EQ( s_kListFailed, ReportsOf( log ).back() );
    }
}

TEST( PropertiesTest, PropertiesKeepOrderOfText )
{
    PimVCardParser parser( "item1.TEL;HOME:1\r\nADR:;;x\r\nEND:VCARD\r\n" );
    const CardData expected = { { "item1", "TEL", { { "", "HOME" } }, { "1" } },
                                { "", "ADR", {}, { "", "", "x" } },
                                { "", "END", {}, { "VCARD" } } };
    EXPECT_EQ( expected, Take( parser.ParseProperties() ) );
}

} // namespace PimManager::vCard
