#include "Contact/DateFields.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::nullopt_t s_kOpen = std::nullopt;

struct Row
{
    const char* m_name;
    DateFields m_fields;
};

struct PartRow
{
    const char* m_name;
    std::optional<int> DateFields::*m_part;
};

constexpr std::array s_kParts = {
    PartRow{ "year", &DateFields::m_year },     PartRow{ "month", &DateFields::m_month },
    PartRow{ "day", &DateFields::m_day },       PartRow{ "hour", &DateFields::m_hour },
    PartRow{ "minute", &DateFields::m_minute }, PartRow{ "second", &DateFields::m_second },
    PartRow{ "offset", &DateFields::m_offset },
};

const std::array s_kValid = {
    Row{ "year", { 1985, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "first year", { 1, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "last year", { 9999, 12, 31, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "month", { s_kOpen, 4, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "month and day", { s_kOpen, 4, 12, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "last day of an open month", { s_kOpen, s_kOpen, 31, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "29 February of an open year", { s_kOpen, 2, 29, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "29 February of a leap year", { 1984, 2, 29, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "29 February of 2000", { 2000, 2, 29, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "hour", { s_kOpen, s_kOpen, s_kOpen, 0, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "minute", { s_kOpen, s_kOpen, s_kOpen, s_kOpen, 59, s_kOpen, s_kOpen } },
    Row{ "leap second", { s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen, 60, s_kOpen } },
    Row{ "day and hour", { s_kOpen, s_kOpen, 12, 23, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "hour and offset", { s_kOpen, s_kOpen, s_kOpen, 10, s_kOpen, s_kOpen, 0 } },
    Row{ "greatest offset", { 1985, 4, 12, 10, 22, 0, 1439 } },
    Row{ "least offset", { 1985, 4, 12, 10, 22, 0, -1439 } },
};

const std::array s_kInvalid = {
    Row{ "nothing", {} },
    Row{ "year 0", { 0, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "negative year", { -1985, 4, 12, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "year of five digits", { 10000, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "month 0", { 1985, 0, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "month 13", { 1985, 13, 1, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "day 0", { s_kOpen, s_kOpen, 0, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "day 32", { s_kOpen, s_kOpen, 32, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "31 April", { s_kOpen, 4, 31, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "30 February", { s_kOpen, 2, 30, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "29 February of a common year", { 1985, 2, 29, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "29 February of 1900", { 1900, 2, 29, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "hour 24", { s_kOpen, s_kOpen, s_kOpen, 24, 0, 0, s_kOpen } },
    Row{ "negative hour", { s_kOpen, s_kOpen, s_kOpen, -1, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "minute 60", { s_kOpen, s_kOpen, s_kOpen, 10, 60, s_kOpen, s_kOpen } },
    Row{ "second 61", { s_kOpen, s_kOpen, s_kOpen, 10, 22, 61, s_kOpen } },
    Row{ "offset of a day", { s_kOpen, s_kOpen, s_kOpen, 10, s_kOpen, s_kOpen, 1440 } },
    Row{ "negative offset of a day", { s_kOpen, s_kOpen, s_kOpen, 10, s_kOpen, s_kOpen, -1440 } },
    Row{ "year and day", { 1985, s_kOpen, 12, s_kOpen, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "hour and second", { s_kOpen, s_kOpen, s_kOpen, 10, s_kOpen, 0, s_kOpen } },
    Row{ "year and hour", { 1985, s_kOpen, s_kOpen, 10, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "day and minute", { 1985, 4, 12, s_kOpen, 22, s_kOpen, s_kOpen } },
    Row{ "offset", { s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen, s_kOpen, 0 } },
    Row{ "date and offset", { 1985, 4, 12, s_kOpen, s_kOpen, s_kOpen, 0 } },
};

} // namespace

TEST( DateFieldsTest, PartsThatHaveAFormAreValid )
{
    for ( const Row& row : s_kValid )
        EXPECT_TRUE( row.m_fields.IsValid() ) << row.m_name;
}

TEST( DateFieldsTest, PartsOutOfRangeOrWithoutAFormAreInvalid )
{
    for ( const Row& row : s_kInvalid )
        EXPECT_FALSE( row.m_fields.IsValid() ) << row.m_name;
}

TEST( DateFieldsTest, EachPartCountsInComparisons )
{
    const DateFields whole{ 1985, 4, 12, 10, 22, 0, 0 };
    EXPECT_TRUE( whole == DateFields( whole ) );
    for ( const PartRow& row : s_kParts )
    {
        DateFields other = whole;
        other.*row.m_part = 1;
        EXPECT_FALSE( whole == other ) << row.m_name;
        ( other.*row.m_part ).reset();
        EXPECT_FALSE( whole == other ) << row.m_name;
    }
}

} // namespace PimManager::Contacts
