#include "JCard/ExtendedForms.h"

#include "JCard/BasicForms.h"

#include <gtest/gtest.h>

#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct FormRow
{
    const char* m_basic;
    bool m_isTime;
    const char* m_extended;
};

} // namespace

TEST( ExtendedFormsTest, DatesAndTimesAreTheSameOnTheWayBack )
{
    const std::vector<FormRow> rows = {
        { "19850412", false, "1985-04-12" },
        { "1985-04", false, "1985-04" },
        { "1985", false, "1985" },
        { "--0412", false, "--04-12" },
        { "--04", false, "--04" },
        { "---12", false, "---12" },
        { "19850412T232050", false, "1985-04-12T23:20:50" },
        { "20090808T143000-0500", false, "2009-08-08T14:30:00-05:00" },
        { "19951031T222710Z", false, "1995-10-31T22:27:10Z" },
        { "--0412T2320", false, "--04-12T23:20" },
        { "---12T20", false, "---12T20" },
        { "T232050", false, "T23:20:50" },
        { "T-2050", false, "T-20:50" },
        { "T--50", false, "T--50" },
        { "232050", true, "23:20:50" },
        { "2320", true, "23:20" },
        { "23", true, "23" },
        { "-2050", true, "-20:50" },
        { "--50", true, "--50" },
        { "123456Z", true, "12:34:56Z" },
        { "123456.7-0800", true, "12:34:56.7-08:00" },
        { "102200-08", true, "10:22:00-08" },
        { "-0500", true, "-05:00" },
        { "+0130", true, "+01:30" },
        { "+01", true, "+01" },
    };
    for ( const FormRow& row : rows )
    {
        std::string extended;
        AppendExtendedForm( row.m_basic, row.m_isTime, extended );
        EXPECT_EQ( extended, row.m_extended ) << row.m_basic;
        std::string basic;
        EXPECT_TRUE( AppendBasicForm( extended, row.m_isTime, basic ) ) << row.m_basic;
        EXPECT_EQ( basic, row.m_basic ) << row.m_basic;
    }
}

TEST( ExtendedFormsTest, OtherTextsStay )
{
    for ( const char* const text : { "", "circa 1800", "1985-04-12", "Tuesday", "T", "198504", "12345" } )
    {
        std::string out;
        AppendExtendedForm( text, false, out );
        EXPECT_EQ( out, text );
    }
}

} // namespace PimManager::Contacts
