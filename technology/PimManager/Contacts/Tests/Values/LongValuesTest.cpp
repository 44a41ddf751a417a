#include "OneLine.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kPieces = 40000;

// One piece again and again, in the value or in the parameters.
struct LongValueRow
{
    const char* m_name;
    QByteArray m_before;
    QByteArray m_piece;
    QByteArray m_behind;
    int m_components;
    int m_elements;
    int m_textLength;
    int m_parameters;
};

std::ostream& operator<<( std::ostream& a_stream, const LongValueRow& a_row )
{
    return a_stream << a_row.m_name;
}

class LongValuesTest : public ::testing::TestWithParam<LongValueRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Values, LongValuesTest,
    ::testing::Values( LongValueRow{ "Semicolons", "N:", ";", "", s_kPieces + 1, 1, s_kPieces, 0 },
                       LongValueRow{ "Commas", "N:", ",", "", 1, s_kPieces + 1, s_kPieces, 0 },
                       LongValueRow{ "Backslashes", "N:", "\\", "", 1, 1, s_kPieces / 2, 0 },
                       LongValueRow{ "EscapedSemicolons", "N:", "\\;", "", 1, 1, s_kPieces, 0 },
                       LongValueRow{ "UnknownEscapes", "N:", "\\x", "", 1, 1, 2 * s_kPieces, 0 },
                       LongValueRow{ "Quotes", "N:", "\"", "", 1, 1, s_kPieces, 0 },
                       LongValueRow{ "Equals", "N;QUOTED-PRINTABLE:", "=", ".", 1, 1, s_kPieces + 1, 1 },
                       LongValueRow{ "EncodedSemicolons", "N;QUOTED-PRINTABLE:", "=3B", "", 1, 1, s_kPieces, 1 },
                       LongValueRow{ "EncodedAndRawSemicolons", "N;QUOTED-PRINTABLE:", "=3B;", "", s_kPieces + 1, 1,
                                     2 * s_kPieces, 1 },
                       LongValueRow{ "EncodedBackslashes", "N;QUOTED-PRINTABLE:", "=5C", "", 1, 1, s_kPieces, 1 },
                       LongValueRow{ "TwoCharsets", "N;CHARSET=KOI8-R;QUOTED-PRINTABLE:", "=C1\xC3\xA9;", "",
                                     s_kPieces + 1, 1, 3 * s_kPieces, 2 },
                       LongValueRow{ "EncodedOtherCharset", "N;CHARSET=KOI8-R;QUOTED-PRINTABLE:", "=C1=3B", "", 1, 1,
                                     2 * s_kPieces, 2 },
                       LongValueRow{ "Folds", "N:", "a;\r\n ", "", s_kPieces + 1, 1, 2 * s_kPieces, 0 },
                       LongValueRow{ "ParameterSemicolons", "N", ";", ":a", 1, 1, 1, 0 },
                       LongValueRow{ "ParameterCommas", "N;TYPE=", ",", ":a", 1, 1, 1, 0 },
                       LongValueRow{ "ParameterQuotes", "N;X-A=", "\"", "x:a", 1, 1, 1, 1 },
                       LongValueRow{ "OpenQuotesInOneParameter", "N;X-A=", "\"x,", "x:a", 1, 1, 1, 1 },
                       LongValueRow{ "OpenQuotesInManyParameters", "N", ";X-A=\"x", ":a", 1, 1, 1, 1 },
                       LongValueRow{ "Carets", "N;X-A=", "^", ":a", 1, 1, 1, 1 },
                       LongValueRow{ "ParameterEquals", "N;", "=", ":a", 1, 1, 1, 1 } ),
    []( const ::testing::TestParamInfo<LongValueRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( LongValuesTest, ValueIsDecoded )
{
    const LongValueRow& row = GetParam();
    const PimContactLine line = OneLine( row.m_before + row.m_piece.repeated( s_kPieces ) + row.m_behind );
    EXPECT_EQ( line.Components().size(), row.m_components );
    EXPECT_EQ( line.List().size(), row.m_elements );
    EXPECT_EQ( line.Text().size(), row.m_textLength );
    EXPECT_EQ( line.ParameterNames().size(), row.m_parameters );
    EXPECT_FALSE( line.Values().isEmpty() );
}

} // namespace PimManager::Contacts
