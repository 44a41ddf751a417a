#include "ChangedBooks.h"

#include "MadeTextParse.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr quint32 s_kSeeds = 20;
constexpr int s_kPeople = 100;

} // namespace

TEST( ChangedBooksTest, BothBooksParseWhole )
{
    for ( quint32 seed = 0; seed < s_kSeeds; ++seed )
    {
        const ChangedBooks books = ChangedBookGenerator( seed ).Make( s_kPeople );
        const MadeTextParse old( books.m_old );
        const MadeTextParse changed( books.m_new );
        EXPECT_EQ( 0, old.Failures() ) << seed;
        EXPECT_EQ( 0, changed.Failures() ) << seed;
        EXPECT_EQ( books.m_oldSize, old.Cards().size() ) << seed;
        EXPECT_EQ( books.m_oldOf.size(), changed.Cards().size() ) << seed;
        EXPECT_GE( books.m_oldSize, s_kPeople ) << seed;
    }
}

TEST( ChangedBooksTest, EachPersonIsOnce )
{
    for ( quint32 seed = 0; seed < s_kSeeds; ++seed )
    {
        const ChangedBooks books = ChangedBookGenerator( seed ).Make( s_kPeople );
        QVector<int> partners = books.m_oldOf;
        partners.removeAll( -1 );
        std::sort( partners.begin(), partners.end() );
        EXPECT_EQ( std::adjacent_find( partners.begin(), partners.end() ), partners.end() ) << seed;
        EXPECT_LT( partners.last(), books.m_oldSize ) << seed;
        EXPECT_LT( partners.size(), books.m_oldSize ) << seed;
        EXPECT_LT( partners.size(), books.m_oldOf.size() ) << seed;
    }
}

TEST( ChangedBooksTest, SeedDeterminesTheBooks )
{
    const ChangedBooks first = ChangedBookGenerator( 1 ).Make( s_kPeople );
    const ChangedBooks second = ChangedBookGenerator( 1 ).Make( s_kPeople );
    EXPECT_EQ( first.m_old, second.m_old );
    EXPECT_EQ( first.m_new, second.m_new );
    EXPECT_EQ( first.m_oldOf, second.m_oldOf );
    EXPECT_NE( first.m_old, ChangedBookGenerator( 2 ).Make( s_kPeople ).m_old );
}

} // namespace PimManager::vCard::MadeTexts
