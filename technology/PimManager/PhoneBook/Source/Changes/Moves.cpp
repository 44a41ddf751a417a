#include "Changes/Moves.h"

#include <algorithm>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

/// \return for each number, whether it belongs to a longest ascending subsequence, the same one for all of them.
std::vector<bool> IsInLongest( const QVector<int>& a_numbers )
{
    // For each length, the index of the smallest number that ends such a subsequence; and the number before each.
    std::vector<int> ends;
    std::vector<int> before( static_cast<size_t>( a_numbers.size() ), -1 );
    for ( int i = 0; i < a_numbers.size(); ++i )
    {
        const auto end =
            std::lower_bound( ends.begin(), ends.end(), a_numbers.at( i ),
                              [&]( int a_index, int a_number ) { return a_numbers.at( a_index ) < a_number; } );
        before[static_cast<size_t>( i )] = end == ends.begin() ? -1 : *( end - 1 );
        if ( end == ends.end() )
            ends.push_back( i );
        else
            *end = i;
    }
    std::vector<bool> isIn( before.size() );
    for ( int i = ends.empty() ? -1 : ends.back(); i >= 0; i = before[static_cast<size_t>( i )] )
        isIn[static_cast<size_t>( i )] = true;
    return isIn;
}

} // namespace

QVector<int> FewestMoves( const QVector<int>& a_numbers )
{
    const std::vector<bool> stays = IsInLongest( a_numbers );
    QVector<int> moves;
    for ( int i = 0; i < a_numbers.size(); ++i )
    {
        if ( !stays[static_cast<size_t>( i )] )
            moves.append( i );
    }
    return moves;
}

} // namespace PimManager::PhoneBook
