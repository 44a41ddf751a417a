#include "Contact/FreeGroups.h"

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

TEST( FreeGroupsTest, GroupsAreNumberedFromOne )
{
    FreeGroups groups;
    EXPECT_EQ( groups.Take(), "item1" );
    EXPECT_EQ( groups.Take(), "item2" );
}

TEST( FreeGroupsTest, UsedGroupsAreLeftOutInAnyLetterCase )
{
    FreeGroups groups;
    for ( const char* const used : { "item1", "ITEM3", "", "other", "item04" } )
        groups.Add( used );
    EXPECT_EQ( groups.Take(), "item2" );
    EXPECT_EQ( groups.Take(), "item4" );
}

TEST( FreeGroupsTest, LargestNumberIsOneOfMany )
{
    FreeGroups groups;
    groups.Add( "item2147483647" );
    EXPECT_EQ( groups.Take(), "item1" );
}

} // namespace PimManager::Contacts
