#include <PimManager/PhoneBook/PimPhoneBookOptions.h>

#include <gtest/gtest.h>

#include <vector>

using namespace PimManager::PhoneBook;

TEST( PimPhoneBookOptionsTest, RegionIsKnownOrEmpty )
{
    struct Row
    {
        const char* m_region;
        const char* m_expected;
    };
    const std::vector<Row> rows = {
        { "DE", "DE" }, { "de", "DE" }, { "iT", "IT" }, { "", "" },
        { "XX", "" },   { "DEU", "" },  { "D", "" },    { "49", "" },
    };
    for ( const Row& row : rows )
    {
        PimPhoneBookOptions options;
        options.SetRegion( QStringLiteral( "FR" ) );
        options.SetRegion( QString::fromLatin1( row.m_region ) );
        EXPECT_EQ( options.Region().toStdString(), row.m_expected ) << row.m_region;
    }
}
