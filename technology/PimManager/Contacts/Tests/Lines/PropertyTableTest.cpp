#include "Lines/PropertyTable.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_name;
    PropertyId m_property;
};

const Row s_kRows[] = {
    { "FN", PropertyId::Fn },
    { "n", PropertyId::N },
    { "Nickname", PropertyId::Nickname },
    { "org", PropertyId::Org },
    { "Email", PropertyId::Email },
    { "TEL", PropertyId::Tel },
    { "adr", PropertyId::Adr },
    { "version", PropertyId::Version },
    { "x-irmc-call-datetime", PropertyId::CallTime },
    { "X-ABLabel", PropertyId::GroupLabel },
    { "X-ABDATE", PropertyId::GroupDate },
    { "ANNIVERSARY", PropertyId::Anniversary },
    { "X-ANNIVERSARY", PropertyId::Anniversary },
    { "X-KADDRESSBOOK-X-Anniversary", PropertyId::Anniversary },
    { "IMPP", PropertyId::Messenger },
    { "x-evolution-google-talk", PropertyId::Messenger },
    { "X-SPOUSE", PropertyId::Related },
    { "", PropertyId::Other },
    { "X", PropertyId::Other },
    { "FM", PropertyId::Other },
    { "FN2", PropertyId::Other },
    { "X-FN", PropertyId::Other },
    { "X-IRMC-CALL-DATETIMES", PropertyId::Other },
    { "X-ANNIVERSARX", PropertyId::Other },
    { "SOCIALPROFILE", PropertyId::SocialProfile },
    { "socialprofilE", PropertyId::SocialProfile },
    { "SOCIALPROFILX", PropertyId::Other },
    { "X-SOCIALPROFILE", PropertyId::SocialProfile },
    { "NICKNAMf", PropertyId::Other },
    { "\xCE\xCF", PropertyId::Other },
};

} // namespace

class PropertyTableTest : public testing::TestWithParam<Row>
{
};

TEST_P( PropertyTableTest, NameIsFoundInAnyLetterCase )
{
    EXPECT_EQ( PropertyOf( GetParam().m_name ), GetParam().m_property );
}

TEST_P( PropertyTableTest, NameIsFoundAtTheBeginningOfALongerText )
{
    const std::string name = GetParam().m_name;
    if ( name.empty() )
        return;
    EXPECT_EQ( PropertyAt( name + ";TYPE=home:text", name.size() ), GetParam().m_property );
}

INSTANTIATE_TEST_SUITE_P( Rows, PropertyTableTest, testing::ValuesIn( s_kRows ) );

TEST( PropertyTableTest, NamesOfVendorsAreNotOfAStandard )
{
    EXPECT_EQ( StandardPropertyOf( "anniversary" ), PropertyId::Anniversary );
    EXPECT_EQ( StandardPropertyOf( "XML" ), PropertyId::Xml );
    EXPECT_EQ( StandardPropertyOf( "X-ANNIVERSARY" ), PropertyId::Other );
    EXPECT_EQ( StandardPropertyOf( "x-irmc-call-datetime" ), PropertyId::Other );
}

TEST( PropertyTableTest, PropertyHasTheNameOfItsStandard )
{
    EXPECT_EQ( NameOf( PropertyId::Anniversary ), "ANNIVERSARY" );
    EXPECT_EQ( NameOf( PropertyId::Messenger ), "IMPP" );
    EXPECT_EQ( NameOf( PropertyId::CallTime ), "" );
    EXPECT_EQ( NameOf( PropertyId::Other ), "" );
}

TEST( PropertyTableTest, LongNameIsNotFound )
{
    EXPECT_EQ( PropertyOf( std::string( 1000000, 'N' ) ), PropertyId::Other );
}

} // namespace PimManager::Contacts
