#include "Contact/DateText.h"

#include "Contact/DateParser.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_basic;
    const char* m_extended;
};

constexpr std::array s_kRows = {
    Row{ "19850412", "1985-04-12" },
    Row{ "00010203", "0001-02-03" },
    Row{ "99991231", "9999-12-31" },
    Row{ "1985-04", "1985-04" },
    Row{ "1985", "1985" },
    Row{ "--0412", "--04-12" },
    Row{ "--0229", "--02-29" },
    Row{ "--04", "--04" },
    Row{ "---12", "---12" },
    Row{ "T102200", "T10:22:00" },
    Row{ "T1022", "T10:22" },
    Row{ "T10", "T10" },
    Row{ "T-2200", "T-22:00" },
    Row{ "T-22", "T-22" },
    Row{ "T--00", "T--00" },
    Row{ "T102200Z", "T10:22:00Z" },
    Row{ "T10Z", "T10Z" },
    Row{ "T-22Z", "T-22Z" },
    Row{ "T102200-0800", "T10:22:00-08:00" },
    Row{ "T--00+0530", "T--00+05:30" },
    Row{ "T1022-0030", "T10:22-00:30" },
    Row{ "19961022T140000", "1996-10-22T14:00:00" },
    Row{ "--1022T1400", "--10-22T14:00" },
    Row{ "---22T14", "---22T14" },
    Row{ "19961022T140000Z", "1996-10-22T14:00:00Z" },
    Row{ "19961022T235960+2359", "1996-10-22T23:59:60+23:59" },
};

} // namespace

TEST( DateTextTest, BasicFormatHasNoSeparators )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( DateText( ReadDate( row.m_extended ).value_or( DateFields() ), DateFormat::Basic ).Text(),
                   row.m_basic );
}

TEST( DateTextTest, ExtendedFormatHasSeparators )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( DateText( ReadDate( row.m_basic ).value_or( DateFields() ), DateFormat::Extended ).Text(),
                   row.m_extended );
}

TEST( DateTextTest, NoPartHasNoText )
{
    EXPECT_EQ( DateText( DateFields(), DateFormat::Basic ).Text(), "" );
    EXPECT_EQ( DateText( DateFields(), DateFormat::Extended ).Text(), "" );
}

} // namespace PimManager::Contacts
