#include "Contact/GeoValue.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr PimContactVersion s_k21 = PimContactVersion::V21;
constexpr PimContactVersion s_k30 = PimContactVersion::V30;
constexpr PimContactVersion s_k40 = PimContactVersion::V40;

struct Row
{
    const char* m_text;
    PimContactVersion m_version;
    double m_latitude;
    double m_longitude;
};

constexpr std::array s_kRows = {
    Row{ "geo:37.386013,-122.082932", s_k40, 37.386013, -122.082932 },
    Row{ "GEO:37.386013,-122.082932;u=10", s_k30, 37.386013, -122.082932 },
    Row{ "geo:48.2,16.3,183;crs=WGS84;u=40", s_k40, 48.2, 16.3 },
    Row{ "geo:-90,180", s_k21, -90, 180 },
    Row{ "geo:0,-180;other", s_k40, 0, -180 },
    Row{ "37.386013;-122.082932", s_k30, 37.386013, -122.082932 },
    Row{ " +37.5 ; -122.25 ", s_k40, 37.5, -122.25 },
    Row{ ".5;5.", PimContactVersion::Unknown, 0.5, 5 },
    Row{ "-122.082932,37.386013", s_k21, 37.386013, -122.082932 },
    Row{ "37.386013;-122.082932", s_k21, 37.386013, -122.082932 },
};

struct RefusedRow
{
    const char* m_text;
    PimContactVersion m_version;
};

constexpr std::array s_kRefused = {
    RefusedRow{ "geo:48.2,16.3;crs=moon-2011", s_k40 },
    RefusedRow{ "geo:48.2,16.3;u=1;crs=other", s_k40 },
    RefusedRow{ "geo:48.2", s_k40 },
    RefusedRow{ "geo:48.2,", s_k40 },
    RefusedRow{ "geo:48.2,16.3,high", s_k40 },
    RefusedRow{ "geo:48.2,16.3,1,2", s_k40 },
    RefusedRow{ "geo:48.2;16.3", s_k40 },
    RefusedRow{ "geo:90.1,0", s_k40 },
    RefusedRow{ "geo:0,-180.1", s_k40 },
    RefusedRow{ "37.386013,-122.082932", s_k30 },
    RefusedRow{ "37.386013,-122.082932", PimContactVersion::Unknown },
    RefusedRow{ "37,386013;-122,082932", s_k30 },
    RefusedRow{ "37,386013;-122,082932", s_k21 },
    RefusedRow{ "1,2,3", s_k21 },
    RefusedRow{ "1;2;3", s_k30 },
    RefusedRow{ "1e1;2", s_k30 },
    RefusedRow{ "0x1;2", s_k30 },
    RefusedRow{ "nan;nan", s_k30 },
    RefusedRow{ "inf;-infinity", s_k30 },
    RefusedRow{ "+-1;2", s_k30 },
    RefusedRow{ "++1;2", s_k30 },
    RefusedRow{ "N 37;W 122", s_k30 },
    RefusedRow{ ";", s_k30 },
    RefusedRow{ "1", s_k30 },
    RefusedRow{ "", s_k30 },
    RefusedRow{ "", s_k21 },
};

} // namespace

TEST( GeoValueTest, PositionsAreRead )
{
    for ( const Row& row : s_kRows )
    {
        const std::optional<PimContactPosition> position = GeoPositionOf( row.m_text, row.m_version );
        ASSERT_TRUE( position.has_value() ) << row.m_text;
        EXPECT_EQ( position->m_latitude, row.m_latitude ) << row.m_text;
        EXPECT_EQ( position->m_longitude, row.m_longitude ) << row.m_text;
    }
}

TEST( GeoValueTest, OtherTextsAreRefused )
{
    for ( const RefusedRow& row : s_kRefused )
        EXPECT_FALSE( GeoPositionOf( row.m_text, row.m_version ).has_value() ) << row.m_text;
}

} // namespace PimManager::Contacts
