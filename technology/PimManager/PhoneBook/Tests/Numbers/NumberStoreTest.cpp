#include "Numbers/NumberStore.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace PimManager::PhoneBook
{

namespace
{

struct Row
{
    int m_contact;
    int m_line;
    const char* m_digits;
    uint m_form;
    const char* m_extension;
};

constexpr std::array s_kRows = {
    Row{ 0, 0, "493012", 1, "" },
    Row{ 0, 5, "03012", 0, "12" },
    Row{ 3, 127, "", 127, "" },
    Row{ 3, 128, "", 64, "7" },
    Row{ 3, 70000, "*100#", 2, "0123456789" },
    Row{ 7, std::numeric_limits<int>::max(), "1", 127, "" },
};

NumberStore Filled()
{
    NumberStore store;
    for ( const Row& row : s_kRows )
        store.Append( row.m_contact, row.m_line, row.m_digits, row.m_form, row.m_extension );
    return store;
}

} // namespace

TEST( NumberStoreTest, AppendedNumberIsReturned )
{
    NumberStore store = Filled();
    ASSERT_EQ( store.Size(), static_cast<int>( s_kRows.size() ) );
    store.Squeeze();
    for ( int number = 0; number < store.Size(); ++number )
    {
        SCOPED_TRACE( number );
        const Row& row = s_kRows[static_cast<size_t>( number )];
        EXPECT_EQ( store.ContactOf( number ), row.m_contact );
        EXPECT_EQ( store.LineOf( number ), row.m_line );
        EXPECT_EQ( store.Digits( number ), row.m_digits );
        EXPECT_EQ( store.Form( number ), row.m_form );
        EXPECT_EQ( store.Extension( number ), row.m_extension );
    }
}

TEST( NumberStoreTest, AppendReturnsTheIndex )
{
    NumberStore store;
    EXPECT_EQ( store.Append( 4, 1, "1" ), 0 );
    EXPECT_EQ( store.Append( 4, 2, "2" ), 1 );
    EXPECT_EQ( store.Form( 1 ), 0U );
    EXPECT_EQ( store.Extension( 1 ), "" );
}

TEST( NumberStoreTest, NumbersOfContactAreARange )
{
    const NumberStore store = Filled();
    constexpr std::array s_kFirsts = { 0, 2, 2, 2, 5, 5, 5, 5, 6, 6 };
    for ( size_t contact = 0; contact < s_kFirsts.size(); ++contact )
        EXPECT_EQ( store.First( static_cast<int>( contact ) ), s_kFirsts[contact] ) << contact;
}

TEST( NumberStoreTest, EmptyStoreHasNoNumbers )
{
    const NumberStore store;
    EXPECT_EQ( store.Size(), 0 );
    EXPECT_EQ( store.First( 0 ), 0 );
    EXPECT_EQ( store.First( 5 ), 0 );
}

TEST( NumberStoreTest, TwentyThousandNumbersFitIntoTheirMemory )
{
    NumberStore store;
    for ( int number = 0; number < 20000; ++number )
        store.Append( number / 4, 7 + number % 4, std::to_string( 493000000000 + number ), 1 );
    store.Squeeze();
    EXPECT_LE( store.Bytes(), 20000U * 20U );
    EXPECT_EQ( store.ContactOf( 19999 ), 4999 );
    EXPECT_EQ( store.Digits( 19999 ), "493000019999" );
}

} // namespace PimManager::PhoneBook
