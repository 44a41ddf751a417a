#include "Cards/CardLimits.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr qint64 s_kGiB = qint64( 1 ) << 30;

struct LimitsRow
{
    const char* m_name;
    qint64 m_bytes;
    qint64 m_lines;
    int m_nesting;
    // Those that apply.
    qint64 m_mostBytes;
    qint64 m_mostLines;
    int m_mostNesting;
};

std::ostream& operator<<( std::ostream& a_stream, const LimitsRow& a_row )
{
    return a_stream << a_row.m_name;
}

class CardLimitsTest : public ::testing::TestWithParam<LimitsRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P( Options, CardLimitsTest,
                          ::testing::Values( LimitsRow{ "AsGiven", 100000, 2000, 3, 100000, 2000, 3 },
                                             LimitsRow{ "None", 0, 0, 0, s_kGiB, s_kGiB / 5, 64 },
                                             LimitsRow{ "Negative", -1, -1, -1, s_kGiB, s_kGiB / 5, 64 },
                                             LimitsRow{ "TooMuch", s_kGiB + 1, s_kGiB, 65, s_kGiB, s_kGiB / 5, 64 },
                                             LimitsRow{ "Most", s_kGiB, s_kGiB / 5, 64, s_kGiB, s_kGiB / 5, 64 },
                                             LimitsRow{ "AFifthOfTheBytes", 100000, 20001, 1, 100000, 20000, 1 },
                                             LimitsRow{ "LinesOfSmallCards", 100, 2000, 1, 100, 1024, 1 },
                                             LimitsRow{ "FewLinesOfSmallCards", 100, 7, 1, 100, 7, 1 } ),
                          []( const ::testing::TestParamInfo<LimitsRow>& a_info )
                          { return std::string( a_info.param.m_name ); } );

TEST_P( CardLimitsTest, LimitsAreBounded )
{
    PimContactOptions options;
    options.SetCardBytes( GetParam().m_bytes );
    options.SetCardLines( GetParam().m_lines );
    options.SetNesting( GetParam().m_nesting );
    const CardLimits limits( options );
    EXPECT_EQ( limits.m_bytes, GetParam().m_mostBytes );
    EXPECT_EQ( limits.m_lines, GetParam().m_mostLines );
    EXPECT_EQ( limits.m_nesting, GetParam().m_mostNesting );
}

} // namespace PimManager::Contacts
