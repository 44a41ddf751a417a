#include "Changes/Moves.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>

namespace PimManager::PhoneBook
{

namespace
{

struct Row
{
    QVector<int> m_numbers;
    QVector<int> m_moves;
};

// The most numbers that ascend, by trying all of them.
int LongestAscending( const QVector<int>& a_numbers )
{
    int longest = 0;
    for ( int chosen = 0; chosen < 1 << a_numbers.size(); ++chosen )
    {
        QVector<int> numbers;
        for ( int i = 0; i < a_numbers.size(); ++i )
        {
            if ( ( chosen >> i & 1 ) != 0 )
                numbers.append( a_numbers.at( i ) );
        }
        if ( std::is_sorted( numbers.begin(), numbers.end() ) )
            longest = std::max( longest, static_cast<int>( numbers.size() ) );
    }
    return longest;
}

} // namespace

TEST( MovesTest, FewestAreFound )
{
    const std::array rows = {
        Row{ {}, {} },
        Row{ { 5 }, {} },
        Row{ { 0, 1, 2, 3 }, {} },
        Row{ { 3, 0, 1, 2 }, { 0 } },
        Row{ { 1, 2, 3, 0 }, { 3 } },
        Row{ { 0, 5, 1, 2 }, { 1 } },
        Row{ { 7, 3, 9 }, { 0 } },
    };
    for ( size_t i = 0; i < rows.size(); ++i )
        EXPECT_EQ( FewestMoves( rows[i].m_numbers ), rows[i].m_moves ) << "row " << i;
}

TEST( MovesTest, RandomOrdersHaveFewestMoves )
{
    std::mt19937 random( 5 );
    for ( int round = 0; round < 300; ++round )
    {
        QVector<int> numbers( round % 9 );
        std::iota( numbers.begin(), numbers.end(), 0 );
        std::shuffle( numbers.begin(), numbers.end(), random );
        const QVector<int> moves = FewestMoves( numbers );
        EXPECT_EQ( moves.size(), numbers.size() - LongestAscending( numbers ) ) << "round " << round;
        QVector<int> rest;
        for ( int i = 0; i < numbers.size(); ++i )
        {
            if ( !moves.contains( i ) )
                rest.append( numbers.at( i ) );
        }
        EXPECT_TRUE( std::is_sorted( rest.begin(), rest.end() ) ) << "round " << round;
        EXPECT_TRUE( std::is_sorted( moves.begin(), moves.end() ) ) << "round " << round;
    }
}

TEST( MovesTest, ReversedMillionLeavesOne )
{
    QVector<int> numbers( 1000000 );
    std::iota( numbers.begin(), numbers.end(), 0 );
    EXPECT_TRUE( FewestMoves( numbers ).isEmpty() );
    std::reverse( numbers.begin(), numbers.end() );
    EXPECT_EQ( FewestMoves( numbers ).size(), 999999 );
}

} // namespace PimManager::PhoneBook
