#include "Model/RowChanges.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

using Ids = std::vector<int>;

constexpr int s_kAll = 1000000;

QVector<int> ListOf( const Ids& a_ids )
{
    QVector<int> list;
    for ( const int id : a_ids )
        list.append( id );
    return list;
}

// Does the steps, and checks that each of them is possible.
Ids Done( Ids a_rows, const RowChanges& a_changes, const Ids& a_new )
{
    const auto size = [&] { return static_cast<int>( a_rows.size() ); };
    for ( auto range = a_changes.m_removed.rbegin(); range != a_changes.m_removed.rend(); ++range )
    {
        EXPECT_TRUE( range->m_first >= 0 && range->m_count > 0 && range->m_first + range->m_count <= size() );
        const auto first = a_rows.begin() + range->m_first;
        a_rows.erase( first, first + range->m_count );
    }
    for ( const RowMove& move : a_changes.m_moved )
    {
        EXPECT_TRUE( move.m_from >= 0 && move.m_count > 0 && move.m_from + move.m_count <= size() );
        EXPECT_TRUE( move.m_to >= 0 && move.m_to + move.m_count <= size() && move.m_to != move.m_from );
        const auto from = a_rows.begin() + move.m_from;
        const Ids moved( from, from + move.m_count );
        a_rows.erase( from, from + move.m_count );
        a_rows.insert( a_rows.begin() + move.m_to, moved.begin(), moved.end() );
    }
    for ( const RowRange& range : a_changes.m_inserted )
    {
        EXPECT_TRUE( range.m_first >= 0 && range.m_count > 0 && range.m_first <= size() );
        const auto first = a_new.begin() + range.m_first;
        a_rows.insert( a_rows.begin() + range.m_first, first, first + range.m_count );
    }
    return a_rows;
}

template <class Step>
int RowsOf( const std::vector<Step>& a_steps )
{
    return std::accumulate( a_steps.begin(), a_steps.end(), 0,
                            []( int a_rows, const Step& a_step ) { return a_rows + a_step.m_count; } );
}

// The length of the longest ascending subsequence, in quadratic time.
int LongestAscent( const Ids& a_ids )
{
    std::vector<int> longest( a_ids.size(), 1 );
    for ( size_t end = 0; end < a_ids.size(); ++end )
    {
        for ( size_t before = 0; before < end; ++before )
        {
            if ( a_ids[before] < a_ids[end] )
                longest[end] = std::max( longest[end], longest[before] + 1 );
        }
    }
    return longest.empty() ? 0 : *std::max_element( longest.begin(), longest.end() );
}

struct Row
{
    const char* m_name;
    Ids m_old;
    Ids m_new;
    size_t m_removed;
    size_t m_moved;
    size_t m_inserted;
};

Ids RandomIds( std::mt19937& a_random, int a_ids )
{
    Ids ids( static_cast<size_t>( a_ids ) );
    std::iota( ids.begin(), ids.end(), 0 );
    std::shuffle( ids.begin(), ids.end(), a_random );
    ids.resize( a_random() % ( ids.size() + 1 ) );
    if ( a_random() % 2 == 0 )
        std::sort( ids.begin(), ids.end() );
    return ids;
}

} // namespace

TEST( RowChangesTest, StepsAreAsFewAsPossible )
{
    const std::vector<Row> rows = {
        { "nothing", {}, {}, 0, 0, 0 },
        { "equal", { 2, 0, 1 }, { 2, 0, 1 }, 0, 0, 0 },
        { "first rows", {}, { 0, 1 }, 0, 0, 1 },
        { "no rows", { 0, 1 }, {}, 1, 0, 0 },
        { "other rows", { 0, 1 }, { 2, 3 }, 1, 0, 1 },
        { "two gaps", { 0, 1, 2, 3, 4 }, { 0, 2, 4 }, 2, 0, 0 },
        { "two ranges", { 1, 4 }, { 1, 2, 3, 4, 5 }, 0, 0, 2 },
        { "a block up", { 0, 1, 2, 3, 4, 5 }, { 0, 4, 5, 1, 2, 3 }, 0, 1, 0 },
        { "a block down", { 0, 1, 2, 3, 4, 5 }, { 2, 3, 4, 5, 0, 1 }, 0, 1, 0 },
        { "a block around a gap", { 0, 1, 9, 2, 3, 4 }, { 3, 4, 0, 1, 2 }, 1, 1, 0 },
        { "a block around an insertion", { 0, 1, 2, 3 }, { 3, 0, 1, 9, 2 }, 0, 1, 1 },
        { "unknown ids", { 10, 0, 10, 10, 1 }, { 0, 1 }, 2, 0, 0 },
        { "an id twice before", { 3, 0, 2, 0, 1, 4 }, { 4, 0, 1, 3 }, 1, 0, 1 },
        { "an id twice after", { 0, 1 }, { 0, 1, 0 }, 0, 0, 1 },
        { "everything at once", { 0, 1, 2, 3, 4 }, { 4, 5, 1, 2 }, 2, 1, 1 },
    };
    for ( const Row& row : rows )
    {
        SCOPED_TRACE( row.m_name );
        const RowChanges changes = RowChangesBetween( ListOf( row.m_old ), ListOf( row.m_new ), 10, s_kAll );
        EXPECT_EQ( changes.m_removed.size(), row.m_removed );
        EXPECT_EQ( changes.m_moved.size(), row.m_moved );
        EXPECT_EQ( changes.m_inserted.size(), row.m_inserted );
        EXPECT_EQ( Done( row.m_old, changes, row.m_new ), row.m_new );
    }
}

TEST( RowChangesTest, RandomListsLeadToTheNewListWithTheFewestRowsMoved )
{
    std::mt19937 random( 1 );
    for ( int round = 0; round < 3000; ++round )
    {
        SCOPED_TRACE( round );
        constexpr int ids = 14;
        const Ids before = RandomIds( random, ids );
        const Ids after = RandomIds( random, ids );
        const RowChanges changes = RowChangesBetween( ListOf( before ), ListOf( after ), ids, s_kAll );
        ASSERT_EQ( Done( before, changes, after ), after );
        Ids staying;
        for ( const int id : before )
        {
            const auto place = std::find( after.begin(), after.end(), id );
            if ( place != after.end() )
                staying.push_back( static_cast<int>( place - after.begin() ) );
        }
        ASSERT_EQ( RowsOf( changes.m_removed ), static_cast<int>( before.size() - staying.size() ) );
        ASSERT_EQ( RowsOf( changes.m_inserted ), static_cast<int>( after.size() - staying.size() ) );
        ASSERT_EQ( RowsOf( changes.m_moved ), static_cast<int>( staying.size() ) - LongestAscent( staying ) );
    }
}

TEST( RowChangesTest, BeyondTheLimitOnlyEqualStartAndEndStay )
{
    // Every second of a hundred rows goes. Without the equal start, 50 ranges go and 49 stay.
    Ids before( 100 );
    std::iota( before.begin(), before.end(), 0 );
    Ids after;
    std::copy_if( before.begin(), before.end(), std::back_inserter( after ), []( int a_id ) { return a_id % 2 == 0; } );
    const RowChanges exact = RowChangesBetween( ListOf( before ), ListOf( after ), 100, 99 );
    EXPECT_EQ( exact.m_removed.size(), 50U );
    EXPECT_EQ( Done( before, exact, after ), after );
    const RowChanges rough = RowChangesBetween( ListOf( before ), ListOf( after ), 100, 98 );
    ASSERT_EQ( rough.m_removed.size(), 1U );
    EXPECT_EQ( rough.m_removed.front().m_first, 1 );
    EXPECT_EQ( rough.m_removed.front().m_count, 99 );
    EXPECT_EQ( Done( before, rough, after ), after );
}

TEST( RowChangesTest, RandomListsLeadToTheNewListWithAnyLimit )
{
    std::mt19937 random( 2 );
    for ( int round = 0; round < 2000; ++round )
    {
        SCOPED_TRACE( round );
        constexpr int ids = 30;
        const Ids before = RandomIds( random, ids );
        const Ids after = RandomIds( random, ids );
        const auto most = static_cast<int>( random() % 12 ) + 1;
        const RowChanges changes = RowChangesBetween( ListOf( before ), ListOf( after ), ids, most );
        ASSERT_EQ( Done( before, changes, after ), after );
        ASSERT_LE( static_cast<int>( changes.m_removed.size() + changes.m_inserted.size() ), most + 1 );
    }
}

TEST( RowChangesTest, ReversedRowsMoveWithoutTheLongestBlock )
{
    // Blocks of three rows, reversed; the heaviest stays.
    const Ids before = { 0, 1, 2, 3, 4, 5, 6, 7, 8, 9 };
    const Ids after = { 8, 9, 3, 4, 5, 6, 7, 0, 1, 2 };
    const RowChanges changes = RowChangesBetween( ListOf( before ), ListOf( after ), 10, s_kAll );
    EXPECT_EQ( Done( before, changes, after ), after );
    EXPECT_EQ( RowsOf( changes.m_moved ), 5 );
}

} // namespace PimManager::PhoneBook
