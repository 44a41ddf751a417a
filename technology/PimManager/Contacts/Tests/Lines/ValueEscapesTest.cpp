#include "Lines/ValueEscapes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct EscapeRow
{
    const char* m_name;
    std::string m_line;
    std::vector<LineJoin> m_joins;
    qint64 m_count;
    quint32 m_first;
};

std::ostream& operator<<( std::ostream& a_stream, const EscapeRow& a_row )
{
    return a_stream << a_row.m_name;
}

class ValueEscapesTest : public ::testing::TestWithParam<EscapeRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lines, ValueEscapesTest,
    ::testing::Values(
        EscapeRow{ "None", "N:a", {}, 0, 0 }, EscapeRow{ "EmptyValue", "N:", {}, 0, 0 },
        EscapeRow{ "EveryKnownOne", "N:\\\\\\,\\;\\:\\n\\N", {}, 0, 0 }, EscapeRow{ "Letter", "N:a\\b", {}, 1, 3 },
        EscapeRow{ "AtTheEnd", "N:a\\", {}, 1, 3 }, EscapeRow{ "ThreeAtTheEnd", "N:\\\\\\", {}, 1, 4 },
        EscapeRow{ "BackslashEscapesTheNext", "N:\\\\x\\x", {}, 1, 5 },
        EscapeRow{ "SeveralAndTheFirst", "N:\\n\\a\\,\\b\\c", {}, 3, 4 },
        EscapeRow{ "BeforeTheColon", "\\a:\\n", {}, 0, 0 },
        EscapeRow{ "BeforeWideCharacter", "N:\\\xC3\xA9", {}, 1, 2 },
        EscapeRow{ "FoldInsideKnownOne", "N:a\\\r\n n", {}, 0, 0 },
        EscapeRow{ "FoldInsideUnknownOne", "N:a\\\r\n b", {}, 1, 3 },
        EscapeRow{ "WhiteSpaceLineInsideKnownOne", "N:a\\\n \n ,", {}, 0, 0 },
        EscapeRow{ "FoldBetweenBackslashes", "N:\\\n \\\\n", {}, 0, 0 },
        EscapeRow{ "OpenAtTheEndOfAFold", "N:a\n b\\", {}, 1, 6 },
        EscapeRow{ "SoftBreakInsideKnownOne", "N:a\\=\nn", { { 4, 2, PimContactJoin::SoftBreak } }, 0, 0 },
        EscapeRow{ "SoftBreakInsideUnknownOne", "N:a\\=\nb\\c", { { 4, 2, PimContactJoin::SoftBreak } }, 2, 3 } ),
    []( const ::testing::TestParamInfo<EscapeRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( ValueEscapesTest, UnknownEscapesAreCounted )
{
    const EscapeRow& row = GetParam();
    JoinWriter joins;
    for ( const LineJoin& join : row.m_joins )
        joins.Add( join );
    IndexEntry entry;
    entry.m_valueBegin = static_cast<quint32>( row.m_line.find( ':' ) ) + 1;
    entry.m_joins = joins.Bytes();
    const UnknownEscapes escapes = UnknownEscapesIn( row.m_line, entry );
    EXPECT_EQ( escapes.m_count, row.m_count );
    if ( row.m_count > 0 )
    {
        EXPECT_EQ( escapes.m_first, row.m_first );
    }
}

} // namespace PimManager::Contacts
