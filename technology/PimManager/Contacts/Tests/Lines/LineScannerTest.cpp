#include "Lines/LineScanner.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_literals;

std::string NameOfEnd( const PhysicalLine& a_line )
{
    static const std::array<const char*, 4> names = { "CRLF", "LF", "CR", "CRCRLF" };
    constexpr std::array<PimContactLineEnd, 4> kinds = { PimContactLineEnd::CrLf, PimContactLineEnd::Lf,
                                                         PimContactLineEnd::Cr, PimContactLineEnd::CrCrLf };
    for ( size_t i = 0; i < kinds.size() && a_line.m_endLength > 0; ++i )
    {
        if ( kinds[i] == a_line.m_endKind )
            return names[i];
    }
    return "end";
}

std::string Described( const LineScanner& a_scanner, const PhysicalLine& a_line )
{
    std::string text = std::to_string( a_line.m_number ) + '@' + std::to_string( a_line.m_offset ) + " '";
    text += std::string( a_scanner.TextOf( a_line ) ) + "' " + NameOfEnd( a_line );
    text += a_line.m_isWide ? " wide" : "";
    text += a_line.m_hasControls ? " controls" : "";
    return text + ( a_line.m_isLong ? " long" : "" );
}

void TakeLines( LineScanner& a_scanner, std::string& a_lines )
{
    for ( PhysicalLine line; a_scanner.Next( line ); )
    {
        a_lines += ( a_lines.empty() ? "" : " | " ) + Described( a_scanner, line );
        a_scanner.Release( line.End() );
    }
}

struct TextRow
{
    const char* m_name;
    std::string m_text;
    std::string m_lines;
};

std::ostream& operator<<( std::ostream& a_stream, const TextRow& a_row )
{
    return a_stream << a_row.m_name;
}

class LineScannerTest : public ::testing::TestWithParam<TextRow>
{
};

struct EndRow
{
    const char* m_name;
    std::string_view m_bytes;
    bool m_isAll;
    int m_length;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Texts, LineScannerTest,
    ::testing::Values( TextRow{ "Empty", "", "" }, TextRow{ "NoLineEnd", "a", "1@0 'a' end" },
                       TextRow{ "Lf", "a\n", "1@0 'a' LF" },
                       TextRow{ "CrLf", "a\r\nb\r\n", "1@0 'a' CRLF | 2@3 'b' CRLF" },
                       TextRow{ "Cr", "a\rb", "1@0 'a' CR | 2@2 'b' end" },
                       TextRow{ "CrCrLf", "a\r\r\nb", "1@0 'a' CRCRLF | 2@4 'b' end" },
                       TextRow{ "OneCr", "\r", "1@0 '' CR" },
                       TextRow{ "TwoCrAtTheEnd", "a\r\r", "1@0 'a' CR | 2@2 '' CR" },
                       TextRow{ "TwoCrBeforeText", "\r\ra", "1@0 '' CR | 2@1 '' CR | 3@2 'a' end" },
                       TextRow{ "ThreeCrAndLf", "\r\r\r\n", "1@0 '' CR | 2@1 '' CRCRLF" },
                       TextRow{ "LfCr", "a\n\rb", "1@0 'a' LF | 2@2 '' CR | 3@3 'b' end" },
                       TextRow{ "EmptyLines", "\n\r\n\n", "1@0 '' LF | 2@1 '' CRLF | 3@3 '' LF" },
                       TextRow{ "WideBehindTheLine", "a\n\xC3\xA9", "1@0 'a' LF | 2@2 '\xC3\xA9' end wide" },
                       TextRow{ "WideBeforeTheLine", "\xC3\xA9\na\n", "1@0 '\xC3\xA9' LF wide | 2@3 'a' LF" },
                       TextRow{ "TabAndDelete", "a\tb\x7F\n", "1@0 'a\tb\x7F' LF" },
                       TextRow{ "ControlBehindTheLine", "a\n\x1F\n", "1@0 'a' LF | 2@2 '\x1F' LF controls" },
                       TextRow{ "NulInALongLine", "0123456789012345678\0 23456789\n"s,
                                "1@0 '0123456789012345678\0 23456789' LF controls"s },
                       TextRow{ "WideAsTheLastOfManyBytes", "0123456789012345678901234567890\x80\n",
                                "1@0 '0123456789012345678901234567890\x80' LF wide" },
                       TextRow{ "WideAndControl", "\x80\v\x80\r\n", "1@0 '\x80\v\x80' CRLF wide controls" } ),
    []( const ::testing::TestParamInfo<TextRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( LineScannerTest, LinesAreTheSameWhereverTheTextIsCut )
{
    const std::string& text = GetParam().m_text;
    for ( size_t first = 0; first <= text.size(); ++first )
    {
        for ( size_t second = first; second <= text.size(); ++second )
        {
            LineScanner scanner;
            std::string lines;
            scanner.Append( std::string_view( text ).substr( 0, first ) );
            TakeLines( scanner, lines );
            scanner.Append( std::string_view( text ).substr( first, second - first ) );
            TakeLines( scanner, lines );
            scanner.Append( std::string_view( text ).substr( second ) );
            scanner.Finish();
            TakeLines( scanner, lines );
            EXPECT_EQ( lines, GetParam().m_lines ) << GetParam().m_name << " cut at " << first << " and " << second;
        }
    }
}

TEST_P( LineScannerTest, SingleBytesAreTaken )
{
    LineScanner scanner;
    std::string lines;
    for ( const char& byte : GetParam().m_text )
    {
        if ( scanner.TakeByte( byte ) )
            continue;
        scanner.Append( std::string_view( &byte, 1 ) );
        TakeLines( scanner, lines );
    }
    scanner.Finish();
    TakeLines( scanner, lines );
    EXPECT_EQ( lines, GetParam().m_lines );
}

TEST( LineScannerUseTest, LengthOfEndDependsOnBytesToCome )
{
    const std::array<EndRow, 11> rows = { {
        { "LF", "\n", false, 1 },
        { "LF before CR", "\n\r", false, 1 },
        { "CR LF", "\r\n", false, 2 },
        { "CR and text", "\ra", false, 1 },
        { "CR CR LF", "\r\r\n", false, 3 },
        { "CR CR and text", "\r\ra", false, 1 },
        { "three CR", "\r\r\r", false, 1 },
        { "CR", "\r", false, 0 },
        { "the last CR", "\r", true, 1 },
        { "CR CR", "\r\r", false, 0 },
        { "the last CR CR", "\r\r", true, 1 },
    } };
    for ( const EndRow& row : rows )
    {
        const char* const begin = row.m_bytes.data();
        EXPECT_EQ( LineEndSearch::LengthOfEnd( begin, begin + row.m_bytes.size(), row.m_isAll ), row.m_length )
            << row.m_name;
    }
}

TEST( LineScannerUseTest, TakeByteRefusesWhatMayCompleteALine )
{
    LineScanner scanner;
    EXPECT_FALSE( scanner.TakeByte( 'a' ) ) << "there is no room yet";
    scanner.Append( "a" );
    EXPECT_TRUE( scanner.TakeByte( 'b' ) );
    EXPECT_FALSE( scanner.TakeByte( '\n' ) );
    EXPECT_TRUE( scanner.TakeByte( '\r' ) );
    EXPECT_FALSE( scanner.TakeByte( 'c' ) );
    EXPECT_EQ( scanner.Rest(), "ab\r" );
}

TEST( LineScannerUseTest, OpenStartOfALineMakesTheRestLong )
{
    LineScanner scanner;
    PhysicalLine line;
    scanner.Append( "x\nabcdefgh" );
    ASSERT_TRUE( scanner.Next( line ) );
    EXPECT_FALSE( scanner.Next( line ) );
    EXPECT_EQ( scanner.OpenLength(), 8 );
    scanner.TakeOpen( 5 );
    EXPECT_TRUE( scanner.IsLong() );
    EXPECT_EQ( scanner.NextOffset(), 7 );
    EXPECT_EQ( scanner.NextLineOffset(), 2 );
    EXPECT_EQ( scanner.NextNumber(), 2 );
    scanner.Append( "ij\r\nk\n" );
    ASSERT_TRUE( scanner.Next( line ) );
    EXPECT_EQ( Described( scanner, line ), "2@7 'fghij' CRLF long" );
    EXPECT_EQ( line.m_lineOffset, 2 );
    ASSERT_TRUE( scanner.Next( line ) );
    EXPECT_EQ( Described( scanner, line ), "3@14 'k' LF" );
    EXPECT_EQ( line.m_lineOffset, 14 );
}

TEST( LineScannerUseTest, LongLineMayHaveAnEmptyRest )
{
    for ( const bool hasLineEnd : { true, false } )
    {
        LineScanner scanner;
        scanner.Append( "abc" );
        PhysicalLine line;
        ASSERT_FALSE( scanner.Next( line ) );
        scanner.TakeOpen( 3 );
        scanner.Append( hasLineEnd ? "\n" : "" );
        scanner.Finish();
        ASSERT_TRUE( scanner.Next( line ) ) << hasLineEnd;
        EXPECT_EQ( Described( scanner, line ), hasLineEnd ? "1@3 '' LF long" : "1@3 '' end long" );
        EXPECT_FALSE( scanner.Next( line ) ) << hasLineEnd;
    }
}

TEST( LineScannerUseTest, PassedBytesAreNoPartOfTheLine )
{
    LineScanner scanner;
    scanner.Append( "\xEF\xBB\xBF"
                    "a\n" );
    scanner.Pass( 3 );
    PhysicalLine line;
    ASSERT_TRUE( scanner.Next( line ) );
    EXPECT_EQ( Described( scanner, line ), "1@3 'a' LF" );
    EXPECT_EQ( line.m_lineOffset, 0 );
}

TEST( LineScannerUseTest, PassedLinesAreCounted )
{
    LineScanner scanner;
    scanner.Append( "\xC3\xA9\nb\nc\n" );
    scanner.PassLines( 5, 2 );
    EXPECT_EQ( scanner.NextOffset(), 5 );
    EXPECT_EQ( scanner.NextLineOffset(), 5 );
    PhysicalLine line;
    ASSERT_TRUE( scanner.Next( line ) );
    EXPECT_EQ( Described( scanner, line ), "3@5 'c' LF" );
}

TEST( LineScannerUseTest, ReleasedBytesLeaveTheOthersInTheirPlaces )
{
    constexpr int lines = 3000;
    LineScanner scanner;
    qint64 offset = 0;
    std::string kept;
    for ( int i = 0; i < lines; ++i )
    {
        const std::string text = "line " + std::to_string( i );
        scanner.Append( text + "\r\n" );
        PhysicalLine line;
        ASSERT_TRUE( scanner.Next( line ) ) << i;
        ASSERT_EQ( line.m_offset, offset ) << i;
        ASSERT_EQ( scanner.TextOf( line ), text ) << i;
        if ( i > 0 )
        {
            ASSERT_EQ( scanner.View( offset - static_cast<qint64>( kept.size() ), static_cast<qint64>( kept.size() ) ),
                       kept )
                << i;
        }
        scanner.Release( offset );
        kept = text + "\r\n";
        offset = line.End();
    }
}

TEST( LineScannerUseTest, PartsHaveTheirOwnFlags )
{
    struct Row
    {
        const char* m_text;
        qint64 m_begin;
        qint64 m_end;
        const char* m_part;
    };
    constexpr std::array<Row, 6> rows = { { { "abcd\n", 0, 4, "2@2 'abcd' LF" },
                                            { "abcd\n", 0, 2, "2@2 'ab' end" },
                                            { "abcd\r\n", 2, 4, "2@4 'cd' CRLF" },
                                            { "abcd", 4, 4, "2@6 '' end" },
                                            { "\xE9\x01"
                                              "cd\n",
                                              2, 4, "2@4 'cd' LF" },
                                            { "ab\xE9\x01\n", 2, 4, "2@4 '\xE9\x01' LF wide controls" } } };
    for ( const Row& row : rows )
    {
        LineScanner scanner;
        scanner.Append( "\n\n" );
        scanner.Append( row.m_text );
        scanner.Finish();
        scanner.PassLines( 2, 1 );
        PhysicalLine line;
        ASSERT_TRUE( scanner.Next( line ) ) << row.m_part;
        const PhysicalLine part = scanner.PartOf( line, row.m_begin, row.m_end );
        EXPECT_EQ( Described( scanner, part ), row.m_part );
        EXPECT_EQ( part.m_lineOffset, 2 ) << row.m_part;
    }
}

TEST( LineScannerUseTest, LinesCanBeReturnedOnceMore )
{
    const std::string text = "ab\r\n\xE9\x01\nc\r\r\n\rlast";
    LineScanner scanner;
    scanner.Append( text );
    scanner.Finish();
    std::vector<PhysicalLine> lines;
    for ( PhysicalLine line; scanner.Next( line ); )
        lines.push_back( line );
    ASSERT_EQ( lines.size(), 5U );
    for ( const PhysicalLine& line : lines )
    {
        for ( const qint64 end : { line.End(), static_cast<qint64>( text.size() ) } )
        {
            PhysicalLine again = scanner.LineAt( line.m_offset, end, line.m_number );
            EXPECT_EQ( again.m_endLength, line.m_endLength ) << line.m_number;
            EXPECT_EQ( again.m_lineOffset, line.m_lineOffset ) << line.m_number;
            again.m_endKind = line.m_endKind;
            EXPECT_EQ( Described( scanner, again ), Described( scanner, line ) );
        }
    }
}

TEST( LineScannerUseTest, ResetForgetsTheText )
{
    LineScanner scanner;
    scanner.Append( "a\nb" );
    PhysicalLine line;
    ASSERT_TRUE( scanner.Next( line ) );
    scanner.Finish();
    scanner.Reset();
    scanner.Append( "c" );
    EXPECT_FALSE( scanner.Next( line ) );
    scanner.Append( "\n" );
    ASSERT_TRUE( scanner.Next( line ) );
    EXPECT_EQ( Described( scanner, line ), "1@0 'c' LF" );
}

} // namespace PimManager::Contacts
