#include "Contact/ContactName.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::array s_kSources = { PropertyId::Fn,  PropertyId::N,     PropertyId::Nickname,
                                    PropertyId::Org, PropertyId::Email, PropertyId::Tel };

} // namespace

TEST( ContactNameTest, BetterNameReplacesTheOther )
{
    ContactName name;
    name.Clear();
    EXPECT_EQ( name.Text(), "" );
    for ( size_t i = s_kSources.size(); i-- > 0; )
    {
        ASSERT_TRUE( name.Wants( s_kSources.at( i ) ) ) << i;
        name.Take( s_kSources.at( i ), { std::to_string( i ) } );
        EXPECT_EQ( name.Text(), std::to_string( i ) );
        for ( size_t other = i; other < s_kSources.size(); ++other )
            EXPECT_FALSE( name.Wants( s_kSources.at( other ) ) ) << i << other;
    }
}

TEST( ContactNameTest, OtherPropertiesAreNoNames )
{
    ContactName name;
    name.Clear();
    for ( const PropertyId other : { PropertyId::Adr, PropertyId::Version, PropertyId::CallTime, PropertyId::Other } )
        EXPECT_FALSE( name.Wants( other ) );
}

TEST( ContactNameTest, EmptyNameIsNotTaken )
{
    ContactName name;
    name.Clear();
    name.Take( PropertyId::Tel, { "1" } );
    name.Take( PropertyId::Fn, { " ", "", "\n" } );
    EXPECT_EQ( name.Text(), "1" );
    EXPECT_TRUE( name.Wants( PropertyId::Fn ) );
}

TEST( ContactNameTest, PartsBecomeOneLine )
{
    ContactName name;
    name.Clear();
    name.Take( PropertyId::N, { "Dr.", "", " Nell  Imogen", "", "\nBrackwater " } );
    EXPECT_EQ( name.Text(), "Dr. Nell Imogen Brackwater" );
    name.Clear();
    EXPECT_EQ( name.Text(), "" );
    EXPECT_TRUE( name.Wants( PropertyId::Tel ) );
}

} // namespace PimManager::Contacts
