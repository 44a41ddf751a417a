#include "Lines/LinePieces.h"

#include "Text/Bytes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr PimContactFoldStyle s_kRemoved = PimContactFoldStyle::BlankRemoved;
constexpr PimContactFoldStyle s_kKept = PimContactFoldStyle::BlankKept;
constexpr quint32 s_kAll = 0xFFFFFFFFU;

struct PieceRow
{
    const char* m_name;
    std::string m_line;
    std::vector<LineJoin> m_joins;
    PimContactFoldStyle m_style;
    quint32 m_begin;
    quint32 m_length;
    // Each piece with its position, "/" and the line feeds before it.
    std::string m_pieces;
    std::string m_unfolded;
};

std::ostream& operator<<( std::ostream& a_stream, const PieceRow& a_row )
{
    return a_stream << a_row.m_name;
}

std::string Pieces( const PieceRow& a_row, const IndexEntry& a_entry, ByteRange a_range )
{
    std::string text;
    LinePieces pieces( a_row.m_line, a_entry, a_row.m_style, a_range );
    while ( pieces.Next() )
    {
        text += text.empty() ? "" : " ";
        text += std::to_string( pieces.Begin() ) + '/' + std::to_string( pieces.LineFeeds() ) + '[';
        text += std::string( pieces.Text() ) + ']';
    }
    return text;
}

// A line ending that belongs to no join.
bool HasFolds( const PieceRow& a_row )
{
    std::string line = a_row.m_line;
    for ( const LineJoin& join : a_row.m_joins )
        line.replace( join.m_begin, join.m_length, std::string( join.m_length, 'x' ) );
    return line.find_first_of( "\r\n" ) != std::string::npos;
}

class LinePiecesTest : public ::testing::TestWithParam<PieceRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lines, LinePiecesTest,
    ::testing::Values(
        PieceRow{ "Empty", "", {}, s_kRemoved, 0, s_kAll, "0/0[]", "" },
        PieceRow{ "OneLine", "FN:a b", {}, s_kRemoved, 0, s_kAll, "0/0[FN:a b]", "FN:a b" },
        PieceRow{ "FoldRemoved", "FN:a\r\n b", {}, s_kRemoved, 0, s_kAll, "0/0[FN:a] 7/0[b]", "FN:ab" },
        PieceRow{ "FoldKept", "FN:a\r\n b", {}, s_kKept, 0, s_kAll, "0/0[FN:a] 6/0[ b]", "FN:a b" },
        PieceRow{ "OneOfTwoBlanksRemoved", "FN:a\n\t b", {}, s_kRemoved, 0, s_kAll, "0/0[FN:a] 6/0[ b]", "FN:a b" },
        PieceRow{ "FoldWithoutBlank", "FN:a\nb", {}, s_kRemoved, 0, s_kAll, "0/0[FN:a] 5/0[b]", "FN:ab" },
        PieceRow{ "FoldsOfEveryLineEnd",
                  "a\n b\r c\r\n d\r\r\n e",
                  {},
                  s_kRemoved,
                  0,
                  s_kAll,
                  "0/0[a] 3/0[b] 6/0[c] 10/0[d] 15/0[e]",
                  "abcde" },
        PieceRow{ "WhiteSpaceLine", "a\n \n b", {}, s_kRemoved, 0, s_kAll, "0/0[a] 3/0[] 5/0[b]", "ab" },
        PieceRow{ "FoldOfABlankAtTheEnd", "a\n ", {}, s_kRemoved, 0, s_kAll, "0/0[a] 3/0[]", "a" },
        PieceRow{
            "DirectJoin", "a\n  b", { { 1, 3, PimContactJoin::Direct } }, s_kKept, 0, s_kAll, "0/0[a] 4/0[b]", "ab" },
        PieceRow{ "LineFeeds",
                  "a\n\n\nb",
                  { { 1, 3, PimContactJoin::LineFeed, 3 } },
                  s_kRemoved,
                  0,
                  s_kAll,
                  "0/0[a] 4/3[b]",
                  "a\n\n\nb" },
        PieceRow{ "SoftBreakKeepsTheBlank",
                  "a=\n b",
                  { { 1, 2, PimContactJoin::SoftBreak } },
                  s_kRemoved,
                  0,
                  s_kAll,
                  "0/0[a] 3/0[ b]",
                  "a b" },
        PieceRow{ "FoldsBetweenJoins",
                  "a\n b\nc\n d",
                  { { 4, 1, PimContactJoin::LineFeed, 1 } },
                  s_kRemoved,
                  0,
                  s_kAll,
                  "0/0[a] 3/0[b] 5/1[c] 8/0[d]",
                  "ab\ncd" },
        PieceRow{ "JoinAtTheEnd",
                  "abc=",
                  { { 3, 1, PimContactJoin::Direct } },
                  s_kRemoved,
                  0,
                  s_kAll,
                  "0/0[abc] 4/0[]",
                  "abc" },
        PieceRow{ "RangeInTheMiddle", "abc\n def\n ghi", {}, s_kRemoved, 1, 6, "1/0[bc] 5/0[de]", "bcde" },
        PieceRow{ "RangeBehindAJoin",
                  "a=\nb=\nc",
                  { { 1, 2, PimContactJoin::SoftBreak }, { 4, 2, PimContactJoin::SoftBreak } },
                  s_kRemoved,
                  3,
                  s_kAll,
                  "3/0[b] 6/0[c]",
                  "bc" },
        PieceRow{ "RangeInsideAJoin",
                  "a=\r\n b=\n c",
                  { { 1, 3, PimContactJoin::SoftBreak }, { 6, 2, PimContactJoin::SoftBreak } },
                  s_kRemoved,
                  2,
                  s_kAll,
                  "4/0[ b] 8/0[ c]",
                  " b c" },
        PieceRow{ "RangeInsideAJoinAndFolds",
                  "a=\r\n b\n c",
                  { { 1, 3, PimContactJoin::SoftBreak } },
                  s_kRemoved,
                  2,
                  s_kAll,
                  "4/0[ b] 8/0[c]",
                  " bc" },
        PieceRow{ "RangeInsideTheLastJoin",
                  "ab=\r\n",
                  { { 2, 3, PimContactJoin::SoftBreak } },
                  s_kRemoved,
                  3,
                  1,
                  "4/0[]",
                  "" },
        PieceRow{ "RangeBeforeABreak", "abc\n def", {}, s_kRemoved, 0, 2, "0/0[ab]", "ab" },
        PieceRow{ "RangeUpToABreak", "abc\n def", {}, s_kRemoved, 0, 3, "0/0[abc]", "abc" },
        PieceRow{ "EmptyRange", "abc", {}, s_kRemoved, 2, 0, "2/0[]", "" } ),
    []( const ::testing::TestParamInfo<PieceRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( LinePiecesTest, BreaksAreUndone )
{
    const PieceRow& row = GetParam();
    JoinWriter joins;
    for ( const LineJoin& join : row.m_joins )
        joins.Add( join );
    IndexEntry entry;
    entry.m_joins = joins.Bytes();
    entry.m_hasFolds = HasFolds( row );
    const quint32 length =
        row.m_length == s_kAll ? static_cast<quint32>( row.m_line.size() ) - row.m_begin : row.m_length;
    const ByteRange range = { row.m_begin, length };
    EXPECT_EQ( Pieces( row, entry, range ), row.m_pieces );
    EXPECT_EQ( ViewOf( Unfolded( row.m_line, entry, row.m_style, range ) ), row.m_unfolded );
}

TEST( LinePiecesUseTest, EachPieceNamesItsBreak )
{
    JoinWriter joins;
    joins.Add( { 5, 1, PimContactJoin::LineFeed, 1 } );
    joins.Add( { 7, 2, PimContactJoin::SoftBreak } );
    joins.Add( { 10, 1, PimContactJoin::Direct } );
    IndexEntry entry;
    entry.m_joins = joins.Bytes();
    const std::vector<PimContactJoin> expected = { PimContactJoin::Fold, PimContactJoin::LineFeed,
                                                   PimContactJoin::SoftBreak, PimContactJoin::Direct };
    std::vector<PimContactJoin> found;
    LinePieces pieces( "aa\n b\nc=\nd\ne", entry, s_kRemoved, { 0, 12 } );
    ASSERT_TRUE( pieces.Next() );
    while ( pieces.Next() )
        found.push_back( pieces.Join() );
    EXPECT_EQ( found, expected );
}

TEST( LinePiecesUseTest, OneLineEndIsRemoved )
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        { "", "" },         { "a", "a" },       { "a\n", "a" },         { "a\r", "a" },
        { "a\r\n", "a" },   { "a\r\r\n", "a" }, { "a\r\r\r\n", "a\r" }, { "a\n\n", "a\n" },
        { "a\r\r", "a\r" }, { "\n", "" },       { "\r\r\n", "" },       { "a\n ", "a\n " },
    };
    for ( const auto& [line, expected] : rows )
        EXPECT_EQ( WithoutLineEnd( line ), expected ) << ::testing::PrintToString( line );
}

TEST( LineEndTest, OneLineEndingIsRemoved )
{
    struct Row
    {
        std::string_view m_line;
        std::string_view m_text;
    };
    const std::vector<Row> rows = {
        { "", "" },         { "a", "a" },       { "a\n", "a" },     { "a\r\n", "a" },     { "a\r\r\n", "a" },
        { "a\r", "a" },     { "\n", "" },       { "\r", "" },       { "\r\n", "" },       { "\r\r\n", "" },
        { "a\n\n", "a\n" }, { "a\r\r", "a\r" }, { "a\n\r", "a\n" }, { "\r\r\r\n", "\r" }, { "a\r\r\r\n", "a\r" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( WithoutLineEnd( row.m_line ), row.m_text ) << testing::PrintToString( row.m_line );
}

} // namespace PimManager::Contacts
