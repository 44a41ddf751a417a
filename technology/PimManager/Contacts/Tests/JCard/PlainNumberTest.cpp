#include "JCard/PlainNumber.h"

#include <gtest/gtest.h>

#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct NumberRow
{
    const char* m_number;
    bool m_isInteger;
    const char* m_plain;
};

} // namespace

TEST( PlainNumberTest, ExponentsAreEliminated )
{
    const std::vector<NumberRow> rows = {
        { "42", true, "42" },
        { "-42", true, "-42" },
        { "3.14", true, "3" },
        { "-3.99", true, "-3" },
        { "0.5", true, "0" },
        { "2e10", true, "20000000000" },
        { "2E+3", true, "2000" },
        { "1.25e1", true, "12" },
        { "125e-2", true, "1" },
        { "125e-9", true, "0" },
        { "0e5", true, "0" },
        { "1e30", true, "1000000000000000000000000000000" },
        { "1.3", false, "1.3" },
        { "1.30", false, "1.30" },
        { "1.30e5", false, "130000" },
        { "-1.305e2", false, "-130.5" },
        { "1.5e0", false, "1.5" },
        { "25e-3", false, "0.025" },
        { "1e-30", false, "0.000000000000000000000000000001" },
        { "0.5e1", false, "5" },
    };
    for ( const NumberRow& row : rows )
    {
        std::string out = "<";
        EXPECT_TRUE( AppendPlainNumber( row.m_number, row.m_isInteger, out ) ) << row.m_number;
        EXPECT_EQ( out, std::string( "<" ) + row.m_plain ) << row.m_number;
    }
}

TEST( PlainNumberTest, OtherTextsAreRefused )
{
    for ( const char* const text : { "", "-", "+1", "1.", ".5", "1e", "1e+", "1e+-1", "1e--1", "1.2.3", "1e5.0", "1-2",
                                     "true", "1e31", "1e-31", "1e99999999999999999999" } )
    {
        std::string out = "<";
        EXPECT_FALSE( AppendPlainNumber( text, false, out ) ) << text;
        EXPECT_FALSE( AppendPlainNumber( text, true, out ) ) << text;
        EXPECT_EQ( out, "<" ) << text;
    }
}

} // namespace PimManager::Contacts
