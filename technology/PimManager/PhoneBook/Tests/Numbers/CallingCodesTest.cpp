#include "Numbers/CallingCodes.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::PhoneBook
{

namespace
{

struct CodeRow
{
    const char* m_digits;
    int m_code;
};

constexpr std::array s_kCodes = {
    CodeRow{ "1", 1 },       CodeRow{ "12015550123", 1 },
    CodeRow{ "7", 7 },       CodeRow{ "49", 49 },
    CodeRow{ "4930", 49 },   CodeRow{ "4", 0 },
    CodeRow{ "3", 0 },       CodeRow{ "37", 0 },
    CodeRow{ "370", 370 },   CodeRow{ "998", 998 },
    CodeRow{ "999", 0 },     CodeRow{ "0", 0 },
    CodeRow{ "0049", 0 },    CodeRow{ "", 0 },
    CodeRow{ "*49", 0 },     CodeRow{ "4#", 0 },
    CodeRow{ "21612", 216 }, CodeRow{ "883", 883 },
    CodeRow{ "210", 0 },
};

struct RegionRow
{
    const char* m_region;
    int m_code;
    int m_area;
};

constexpr std::array s_kRegions = {
    RegionRow{ "DE", 49, 0 },    RegionRow{ "de", 49, 0 },
    RegionRow{ "AC", 247, 0 },   RegionRow{ "ZW", 263, 0 },
    RegionRow{ "VA", 39, 0 },    RegionRow{ "KZ", 7, 0 },
    RegionRow{ "GG", 44, 1481 }, RegionRow{ "AX", 358, 0 },
    RegionRow{ "EH", 212, 0 },   RegionRow{ "TA", 290, 0 },
    RegionRow{ "AG", 1, 268 },   RegionRow{ "JM", 1, 0 },
    RegionRow{ "SJ", 47, 0 },    RegionRow{ "YT", 262, 0 },
    RegionRow{ "BQ", 599, 0 },   RegionRow{ "MF", 590, 0 },
    RegionRow{ "", 0, 0 },       RegionRow{ "D", 0, 0 },
    RegionRow{ "DEU", 0, 0 },    RegionRow{ "ZZ", 0, 0 },
    RegionRow{ "AA", 0, 0 },     RegionRow{ "\xC3\xA4\xC3\xB6", 0, 0 },
};

struct PrefixRow
{
    const char* m_region;
    const char* m_digits;
    const char* m_rest;
};

constexpr std::array s_kTrunkPrefixes = {
    PrefixRow{ "DE", "0301", "301" },
    PrefixRow{ "DE", "301", "301" },
    PrefixRow{ "DE", "0", "0" },
    PrefixRow{ "DE", "00301", "00301" },
    PrefixRow{ "DE", "", "" },
    PrefixRow{ "ES", "0301", "0301" },
    PrefixRow{ "RU", "84951234567", "4951234567" },
    PrefixRow{ "RU", "8001234567", "8001234567" },
    PrefixRow{ "RU", "849512345678", "849512345678" },
    PrefixRow{ "BR", "0151123456789", "1123456789" },
    PrefixRow{ "BR", "01511123456789", "11123456789" },
    PrefixRow{ "BR", "01123456789", "1123456789" },
    PrefixRow{ "HU", "0612345678", "12345678" },
    PrefixRow{ "HU", "06", "06" },
    PrefixRow{ "CN", "1795113800138000", "13800138000" },
    PrefixRow{ "CN",
               "12593"
               "13800138000",
               "13800138000" },
    PrefixRow{ "CN", "13800138000", "13800138000" },
};

constexpr std::array s_kInternationalPrefixes = {
    PrefixRow{ "DE", "004930901820", "4930901820" },
    PrefixRow{ "DE", "00", "" },
    PrefixRow{ "DE", "00493012", "493012" },
    PrefixRow{ "DE", "0049301", "" },
    PrefixRow{ "DE", "0099930901820", "" },
    PrefixRow{ "DE", "0114930901820", "" },
    PrefixRow{ "US", "0114930901820", "4930901820" },
    PrefixRow{ "US", "004930901820", "4930901820" },
    PrefixRow{ "SG", "0014930901820", "4930901820" },
    PrefixRow{ "SG", "004930901820", "4930901820" },
    PrefixRow{ "NG", "0094930901820", "4930901820" },
    PrefixRow{ "NG", "0094123456789", "94123456789" },
    PrefixRow{ "NG", "0094212345678", "4212345678" },
    PrefixRow{ "BR", "00144930901820", "4930901820" },
    PrefixRow{ "JP", "004930901820", "" },
    PrefixRow{ "FI", "9904930901820", "4930901820" },
};

constexpr size_t s_kMostBytes = 8192;

const CallingCode& CodeOf( const char* a_region )
{
    return *HomeOf( QString::fromLatin1( a_region ) ).m_code;
}

} // namespace

TEST( CallingCodesTest, CodeIsTheBeginningOfDigits )
{
    for ( const CodeRow& row : s_kCodes )
    {
        const CallingCode* const code = CallingCodeOf( row.m_digits );
        EXPECT_EQ( code == nullptr ? 0 : code->m_code, row.m_code ) << row.m_digits;
        EXPECT_EQ( code == nullptr ? 0 : code->Size(), row.m_code == 0 ? 0 : std::to_string( row.m_code ).size() )
            << row.m_digits;
    }
}

TEST( CallingCodesTest, RegionHasACode )
{
    for ( const RegionRow& row : s_kRegions )
    {
        const Home home = HomeOf( QString::fromUtf8( row.m_region ) );
        EXPECT_EQ( home.m_code == nullptr ? 0 : home.m_code->m_code, row.m_code ) << row.m_region;
        EXPECT_EQ( home.m_area, row.m_area ) << row.m_region;
    }
}

TEST( CallingCodesTest, TrunkPrefixIsRemoved )
{
    for ( const PrefixRow& row : s_kTrunkPrefixes )
        EXPECT_EQ( WithoutTrunkPrefix( CodeOf( row.m_region ), row.m_digits ), row.m_rest )
            << row.m_region << ' ' << row.m_digits;
}

TEST( CallingCodesTest, InternationalPrefixIsRemoved )
{
    for ( const PrefixRow& row : s_kInternationalPrefixes )
        EXPECT_EQ( WithoutInternationalPrefix( CodeOf( row.m_region ), row.m_digits ), row.m_rest )
            << row.m_region << ' ' << row.m_digits;
}

TEST( CallingCodesTest, TablesAreSmall )
{
    EXPECT_LE( CallingCodesBytes(), s_kMostBytes );
}

} // namespace PimManager::PhoneBook
