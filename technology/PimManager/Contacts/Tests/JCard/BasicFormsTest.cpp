#include "JCard/BasicForms.h"

#include <gtest/gtest.h>

#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct FormRow
{
    const char* m_text;
    bool m_isTime;
    // Null if it is nothing of that kind.
    const char* m_basic;
};

} // namespace

TEST( BasicFormsTest, DatesAndTimesLoseTheirDelimiters )
{
    const std::vector<FormRow> rows = {
        { "1985-04-12", false, "19850412" },
        { "1985-04", false, "1985-04" },
        { "1985", false, "1985" },
        { "--04-12", false, "--0412" },
        { "--04", false, "--04" },
        { "---12", false, "---12" },
        { "19850412", false, "19850412" },
        { "1985-04-12T23:20:50", false, "19850412T232050" },
        { "2009-08-08T14:30:00-05:00", false, "20090808T143000-0500" },
        { "1995-10-31T22:27:10Z", false, "19951031T222710Z" },
        { "--04-12T23:20", false, "--0412T2320" },
        { "---12T20", false, "---12T20" },
        { "T23:20:50", false, "T232050" },
        { "T-20:50", false, "T-2050" },
        { "23:20:50", true, "232050" },
        { "23:20", true, "2320" },
        { "23", true, "23" },
        { "-20:50", true, "-2050" },
        { "--50", true, "--50" },
        { "12:34:56Z", true, "123456Z" },
        { "12:34:56.7-08:00", true, "123456.7-0800" },
        { "-05:00", true, "-0500" },
        { "+01", true, "+01" },
        { "", false, nullptr },
        { "circa 1800", false, nullptr },
        { "1985-04-12 23:20", false, nullptr },
        { "noon", true, nullptr },
        { "1985-04-12T", false, "19850412T" },
    };
    for ( const FormRow& row : rows )
    {
        std::string out = "<";
        EXPECT_EQ( AppendBasicForm( row.m_text, row.m_isTime, out ), row.m_basic != nullptr ) << row.m_text;
        EXPECT_EQ( out, row.m_basic != nullptr ? std::string( "<" ) + row.m_basic : "<" ) << row.m_text;
    }
}

} // namespace PimManager::Contacts
