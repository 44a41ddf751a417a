#include "Values/PartReader.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

struct PartRow
{
    const char* m_name;
    Delimiters m_delimiters;
    std::string_view m_text;
    std::vector<quint32> m_literals;
    // Each part in brackets, and the delimiter after it.
    std::string_view m_parts;
    qint64 m_unknownEscapes;
    qint64 m_escapedQuotes;
};

std::ostream& operator<<( std::ostream& a_stream, const PartRow& a_row )
{
    return a_stream << a_row.m_name;
}

class PartReaderTest : public ::testing::TestWithParam<PartRow>
{
};

constexpr Delimiters s_kNone = Delimiters::None;
constexpr Delimiters s_kSemicolons = Delimiters::Semicolons;
constexpr Delimiters s_kCommas = Delimiters::Commas;
constexpr Delimiters s_kBoth = Delimiters::SemicolonsAndCommas;

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Values, PartReaderTest,
    ::testing::Values(
        PartRow{ "EmptyText", s_kNone, "", {}, "[]", 0, 0 },
        PartRow{ "EmptyComponents", s_kSemicolons, "", {}, "[]", 0, 0 },
        PartRow{ "TextIsNotSplit", s_kNone, "a;b,c:d", {}, "[a;b,c:d]", 0, 0 },
        PartRow{ "Components", s_kSemicolons, "a;b,c;", {}, "[a];[b,c];[]", 0, 0 },
        PartRow{ "List", s_kCommas, "a;b,c,", {}, "[a;b],[c],[]", 0, 0 },
        PartRow{ "ListsInComponents", s_kBoth, "a,b;;c", {}, "[a],[b];[];[c]", 0, 0 },
        PartRow{ "OnlyDelimiters", s_kSemicolons, ";;;", {}, "[];[];[];[]", 0, 0 },
        PartRow{
            "NineComponents", s_kSemicolons, "1;2;3;4;5;6;7;8;9", {}, "[1];[2];[3];[4];[5];[6];[7];[8];[9]", 0, 0 },
        PartRow{ "EscapedDelimiters", s_kBoth, "a\\;b\\,c;d", {}, "[a;b,c];[d]", 0, 0 },
        PartRow{ "EveryKnownEscape", s_kNone, "\\n\\N\\\\\\,\\;\\:", {}, "[\n\n\\,;:]", 0, 0 },
        PartRow{ "EscapedBackslashBeforeDelimiter", s_kSemicolons, "a\\\\;b", {}, "[a\\];[b]", 0, 0 },
        PartRow{ "EscapedBackslashBeforeLetter", s_kNone, "a\\\\nb", {}, "[a\\nb]", 0, 0 },
        PartRow{ "EscapedQuotes", s_kNone, "\\\"a\\'", {}, "[\"a']", 0, 2 },
        PartRow{ "UnknownEscapesAreKept", s_kNone, "a\\b\\ c\\\xC3\xA9", {}, "[a\\b\\ c\\\xC3\xA9]", 3, 0 },
        PartRow{ "BackslashAtTheEnd", s_kNone, "a\\", {}, "[a\\]", 1, 0 },
        PartRow{ "EscapedBackslashAtTheEnd", s_kNone, "a\\\\", {}, "[a\\]", 0, 0 },
        PartRow{ "UnknownEscapeBeforeKnownOne", s_kNone, "\\x\\n", {}, "[\\x\n]", 1, 0 },
        PartRow{ "EscapesInLaterParts", s_kCommas, "a\\,b,c\\;d,e", {}, "[a,b],[c;d],[e]", 0, 0 },
        PartRow{ "LiteralDelimiters", s_kBoth, "a;b;c,d,e", { 1, 5 }, "[a;b];[c,d],[e]", 0, 0 },
        PartRow{ "LiteralBackslash", s_kSemicolons, "a\\n;b", { 1 }, "[a\\n];[b]", 0, 0 },
        PartRow{ "LiteralBackslashBeforeDelimiter", s_kSemicolons, "a\\;b", { 1 }, "[a\\];[b]", 0, 0 },
        PartRow{ "EscapedLiteral", s_kSemicolons, "a\\;b;c", { 2 }, "[a;b];[c]", 0, 0 },
        PartRow{ "EscapedLiteralBackslash", s_kSemicolons, "\\\\n;\\n", { 1 }, "[\\n];[\n]", 0, 0 },
        PartRow{ "AllLiteral", s_kBoth, ";,\\;,\\", { 0, 1, 2, 3, 4, 5 }, "[;,\\;,\\]", 0, 0 },
        PartRow{ "NulIsText", s_kSemicolons, "a\0b;c"sv, {}, "[a\0b];[c]"sv, 0, 0 },
        PartRow{ "EscapedNul", s_kNone, "\\\0"sv, {}, "[\\\0]"sv, 1, 0 } ),
    []( const ::testing::TestParamInfo<PartRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( PartReaderTest, PartsAreReadWithoutEscapes )
{
    const PartRow& row = GetParam();
    QByteArray buffer;
    Findings findings;
    PartReader reader( { row.m_text, &row.m_literals }, row.m_delimiters, buffer, findings );
    std::string parts;
    while ( reader.Next() )
    {
        parts += '[' + std::string( reader.Text() ) + ']';
        parts += reader.Delimiter() == '\0' ? "" : std::string( 1, reader.Delimiter() );
    }
    EXPECT_EQ( parts, row.m_parts );
    EXPECT_FALSE( reader.Next() );
    EXPECT_EQ( findings.Count( PimContactDecodingProblem::UnknownEscape ), row.m_unknownEscapes );
    EXPECT_EQ( findings.Count( PimContactDecodingProblem::EscapedQuote ), row.m_escapedQuotes );
}

} // namespace PimManager::Contacts
