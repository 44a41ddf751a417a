#include "Contact/LabelMarks.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_label;
    const char* m_withoutMarks;
    const char* m_builtIn;
};

constexpr std::array s_kRows = {
    Row{ "_$!<Home>!$_", "Home", "Home" },
    Row{ " _$!< HomeFAX >!$_\n", "HomeFAX", "HomeFAX" },
    Row{ "Boat", "Boat", "" },
    Row{ " Boat ", "Boat", "" },
    Row{ "_$!<Boat", "_$!<Boat", "" },
    Row{ "Boat>!$_", "Boat>!$_", "" },
    Row{ "_$!<>!$_", "", "" },
    Row{ "_$!<", "_$!<", "" },
    Row{ "", "", "" },
};

} // namespace

TEST( LabelMarksTest, MarksAreRemoved )
{
    for ( const Row& row : s_kRows )
    {
        EXPECT_EQ( WithoutLabelMarks( row.m_label ), row.m_withoutMarks ) << row.m_label;
        EXPECT_EQ( BuiltInLabel( row.m_label ), row.m_builtIn ) << row.m_label;
    }
}

} // namespace PimManager::Contacts
