#include "Cards/OutsideText.h"

#include "LedgerText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr qint64 s_kLongestLine = 2000;

const std::string s_kMark = "\xEF\xBB\xBF";

struct OutsideRow
{
    const char* m_name;
    // "/" is a line feed.
    std::string m_text;
    std::string m_extents;
    std::string m_findings;
    PimContactFileKind m_kind = PimContactFileKind::Text;
};

std::ostream& operator<<( std::ostream& a_stream, const OutsideRow& a_row )
{
    return a_stream << a_row.m_name;
}

void AddLines( OutsideText& a_outside, LineScanner& a_scanner )
{
    for ( PhysicalLine line; a_scanner.Next( line ); )
    {
        if ( a_scanner.TextOf( line ) == "END:VCARD" )
            a_outside.AddEnd( line );
        else
            a_outside.Add( line );
    }
}

class OutsideTextTest : public ::testing::TestWithParam<OutsideRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Texts, OutsideTextTest,
    ::testing::Values(
        OutsideRow{ "Nothing", "", "", "" }, OutsideRow{ "OneLine", "a/", "outside a/; ", "text-outside 1; " },
        OutsideRow{ "Lines", "a/b", "outside a/; outside b; ", "text-outside 1 x2; " },
        OutsideRow{ "BlankLines", "/ /\t/", "blank /; blank  /; blank \t/; ", "" },
        OutsideRow{ "BlankLineBetween", "a//b/", "outside a/; blank /; outside b/; ", "text-outside 1 x2; " },
        OutsideRow{ "BlankLineFirst", "/a/", "blank /; outside a/; ", "text-outside 2; " },
        OutsideRow{ "Mark", s_kMark + "/", "mark " + s_kMark + "; blank /; ", "stray-byte-order-mark 1; " },
        OutsideRow{ "MarksBeforeBlanks", s_kMark + s_kMark + " /", "mark " + s_kMark + s_kMark + "; blank  /; ",
                    "stray-byte-order-mark 1 x2; " },
        OutsideRow{ "MarkAtTheEnd", s_kMark, "mark " + s_kMark + "; ", "stray-byte-order-mark 1; " },
        OutsideRow{ "MarkBetween", "a/" + s_kMark + "/b/", "outside a/; mark " + s_kMark + "; blank /; outside b/; ",
                    "text-outside 1; stray-byte-order-mark 2; text-outside 3; " },
        OutsideRow{ "MarkBeforeText", s_kMark + "a/", "outside " + s_kMark + "a/; ", "text-outside 1; " },
        OutsideRow{ "EndLine", "a/END:VCARD/b/", "outside a/; outside END:VCARD/; outside b/; ",
                    "text-outside 1; end-without-begin 2; text-outside 3; " },
        OutsideRow{ "LongLineOfBlanks", std::string( 1025, ' ' ), "outside 1025 bytes; ", "text-outside 1; " },
        OutsideRow{ "LongestBlankLine", std::string( 1024, ' ' ), "blank 1024 bytes; ", "" },
        OutsideRow{ "LineInPieces", std::string( 65537, 'a' ), "outside 65536 bytes; outside a; ", "text-outside 1; " },
        OutsideRow{ "Html", "/<html>/", "blank /; outside <html>/; ", "text-outside 2; ", PimContactFileKind::Html },
        OutsideRow{ "HtmlBehindText", "a/<html>/", "outside a/; outside <html>/; ", "text-outside 1 x2; " },
        OutsideRow{ "ControlCharacters", "a\x01\x02/", "outside a\x01\x02/; ", "text-outside 1; ",
                    PimContactFileKind::Unknown } ),
    []( const ::testing::TestParamInfo<OutsideRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( OutsideTextTest, LinesAreAddedAndCounted )
{
    LineScanner scanner;
    AppendAll( scanner, GetParam().m_text );
    LedgerText ledger;
    OutsideText outside( scanner, ledger.Get(), s_kLongestLine );
    AddLines( outside, scanner );
    outside.End();
    EXPECT_EQ( ledger.Extents(), GetParam().m_extents );
    EXPECT_EQ( ledger.Findings(), GetParam().m_findings );
    EXPECT_EQ( outside.Kind(), GetParam().m_kind );
}

TEST( OutsideTextUseTest, EachEndReportsTheLinesBeforeIt )
{
    LineScanner scanner;
    AppendAll( scanner, "a/b/c/" );
    LedgerText ledger;
    OutsideText outside( scanner, ledger.Get(), s_kLongestLine );
    PhysicalLine line;
    ASSERT_TRUE( scanner.Next( line ) );
    outside.Add( line );
    outside.End();
    outside.End();
    AddLines( outside, scanner );
    outside.End();
    EXPECT_EQ( ledger.Findings(), "text-outside 1; text-outside 2 x2; " );
}

TEST( OutsideTextUseTest, LineThatComesInPartsIsOneLine )
{
    LineScanner scanner;
    AppendAll( scanner, std::string( 200, 'a' ) + "/b/" );
    LedgerText ledger;
    OutsideText outside( scanner, ledger.Get(), s_kLongestLine );
    PhysicalLine part;
    part.m_length = 150;
    outside.Add( part );
    scanner.TakeOpen( 150 );
    AddLines( outside, scanner );
    outside.End();
    EXPECT_EQ( ledger.Extents(), "outside 150 bytes; outside " + std::string( 50, 'a' ) + "/; outside b/; " );
    EXPECT_EQ( ledger.Findings(), "text-outside 1 x2; " );
}

TEST( OutsideTextUseTest, MarksOfALineAreAddedWithoutTheLine )
{
    LineScanner scanner;
    AppendAll( scanner, s_kMark + "BEGIN:VCARD/" );
    LedgerText ledger;
    OutsideText outside( scanner, ledger.Get(), s_kLongestLine );
    PhysicalLine line;
    ASSERT_TRUE( scanner.Next( line ) );
    outside.AddMarks( line, s_kMark.size() );
    EXPECT_EQ( ledger.Extents(), "mark " + s_kMark + "; " );
    EXPECT_EQ( ledger.Findings(), "stray-byte-order-mark 1; " );
}

TEST( OutsideTextUseTest, ResetForgetsTheText )
{
    LineScanner scanner;
    AppendAll( scanner, "<html>/" );
    LedgerText ledger;
    OutsideText outside( scanner, ledger.Get(), s_kLongestLine );
    AddLines( outside, scanner );
    EXPECT_EQ( outside.Kind(), PimContactFileKind::Html );
    outside.Reset();
    outside.End();
    EXPECT_EQ( outside.Kind(), PimContactFileKind::Text );
    EXPECT_EQ( ledger.Findings(), "" );
}

} // namespace PimManager::Contacts
