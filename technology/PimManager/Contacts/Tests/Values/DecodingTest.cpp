#include "OneLine.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using Problem = PimContactDecodingProblem;

struct DecodingRow
{
    const char* m_name;
    QByteArray m_line;
    Problem m_problem;
    qint64 m_count;
    qint64 m_place;
};

std::ostream& operator<<( std::ostream& a_stream, const DecodingRow& a_row )
{
    return a_stream << a_row.m_name;
}

class DecodingTest : public ::testing::TestWithParam<DecodingRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Values, DecodingTest,
    ::testing::Values(
        DecodingRow{ "UnknownCharset", "NOTE;CHARSET=x-none;QUOTED-PRINTABLE:=41", Problem::UnknownCharset, 1, -1 },
        DecodingRow{ "AssumedCharset", "NOTE:\xE9", Problem::AssumedCharset, 1, -1 },
        DecodingRow{ "MalformedText", "NOTE;CHARSET=UTF-8;QUOTED-PRINTABLE:=41a=FF=FE", Problem::MalformedText, 2, 2 },
        DecodingRow{ "MalformedQuotedPrintable", "NOTE;QUOTED-PRINTABLE:a=zb=", Problem::MalformedQuotedPrintable, 1,
                     1 },
        DecodingRow{ "UnknownEscape", "NOTE:a\\n\\b\\", Problem::UnknownEscape, 2, 3 },
        DecodingRow{ "EscapedQuote", "NOTE:a\\\"b\\'", Problem::EscapedQuote, 2, 1 },
        DecodingRow{ "MalformedBinary", "PHOTO;ENCODING=b:Zm9v*", Problem::MalformedBinary, 1, 4 } ),
    []( const ::testing::TestParamInfo<DecodingRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( DecodingTest, ProblemIsCountedAndPlaced )
{
    const DecodingRow& row = GetParam();
    const PimContactDecoding decoding = OneLine( row.m_line, "2.1" ).Decoding();
    EXPECT_FALSE( decoding.IsClean() );
    EXPECT_TRUE( decoding.Problems().testFlag( row.m_problem ) );
    EXPECT_EQ( decoding.Count( row.m_problem ), row.m_count );
    EXPECT_EQ( decoding.FirstPlace( row.m_problem ), row.m_place );
}

TEST( DecodingOfLineTest, CleanValueHasNoProblems )
{
    const PimContactDecoding decoding = OneLine( "NOTE:a\\nb" ).Decoding();
    EXPECT_TRUE( decoding.IsClean() );
    EXPECT_EQ( static_cast<int>( decoding.Problems() ), 0 );
    EXPECT_EQ( decoding.Count( Problem::UnknownEscape ), 0 );
    EXPECT_EQ( decoding.FirstPlace( Problem::UnknownEscape ), -1 );
    EXPECT_EQ( decoding.Charset(), "UTF-8" );
    EXPECT_EQ( PimContactDecoding().Charset(), "UTF-8" );
}

TEST( DecodingOfLineTest, EachProblemIsCountedAlone )
{
    const PimContactDecoding decoding = OneLine( "NOTE;CHARSET=UTF-8;QUOTED-PRINTABLE:=FF=z\\q\\\"", "2.1" ).Decoding();
    EXPECT_EQ( static_cast<int>( decoding.Problems() ),
               static_cast<int>( Problem::MalformedText | Problem::MalformedQuotedPrintable | Problem::UnknownEscape |
                                 Problem::EscapedQuote ) );
}

} // namespace PimManager::Contacts
