#include "Contact/CallTime.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_text;
    const char* m_time;
};

constexpr std::array s_kRows = {
    Row{ "20240311T084512Z", "2024-03-11T08:45:12Z" },
    Row{ "20240311T084512", "2024-03-11T08:45:12" },
    Row{ "2024-03-11T08:45:12Z", "2024-03-11T08:45:12Z" },
    Row{ " 2024-0311t08:4512z\n", "2024-03-11T08:45:12Z" },
    Row{ "20240229T235959", "2024-02-29T23:59:59" },
    Row{ "20230229T000000", "" },
    Row{ "20240311T240000", "" },
    Row{ "20240311T006000", "" },
    Row{ "20241311T000000", "" },
    Row{ "20240311", "" },
    Row{ "20240311T0845", "" },
    Row{ "20240311T084512+01", "" },
    Row{ "20240311T084512ZZ", "" },
    Row{ "2024031T1084512", "" },
    Row{ "", "" },
    Row{ "yesterday", "" },
};

} // namespace

TEST( CallTimeTest, TimesAreRead )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( CallTime( row.m_text ).Text(), row.m_time ) << row.m_text;
}

} // namespace PimManager::Contacts
