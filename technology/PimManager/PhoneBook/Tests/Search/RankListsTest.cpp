#include "Search/RankLists.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

std::vector<quint32> RanksOf( const ContactSet& a_set )
{
    std::vector<quint32> ranks;
    a_set.ForEach( [&ranks]( quint32 a_rank ) { ranks.push_back( a_rank ); } );
    return ranks;
}

} // namespace

TEST( RankListsTest, ListsHaveWhatWasWritten )
{
    constexpr quint32 s_kContacts = 3000000;
    constexpr size_t s_kLists = 5;
    std::mt19937 random( 1 );
    std::vector<std::vector<quint32>> expected( s_kLists );
    // The distances in the lists are about 4, 64, 1,000, 16,000 and 260,000. The first list is empty.
    for ( size_t list = 1; list < s_kLists; ++list )
    {
        for ( quint32 rank = list == 1 ? 0 : 127; rank < s_kContacts && expected[list].size() < 20000;
              rank += 1 + static_cast<quint32>( random() ) % ( 8U << ( 4 * list ) ) )
            expected[list].push_back( rank );
    }
    RankLists lists( s_kLists );
    for ( const bool isMeasured : { false, true } )
    {
        for ( size_t list = 0; list < s_kLists; ++list )
        {
            for ( const quint32 rank : expected[list] )
            {
                // The second time changes nothing.
                for ( int time = 0; time < 2; ++time )
                    isMeasured ? lists.Write( list, rank ) : lists.Measure( list, rank );
            }
        }
        isMeasured ? lists.Finish() : lists.Reserve();
    }
    for ( size_t list = 0; list < s_kLists; ++list )
    {
        ContactSet ranks( s_kContacts );
        lists.AddTo( ranks, list );
        EXPECT_EQ( expected[list], RanksOf( ranks ) ) << list;
    }
}

} // namespace PimManager::PhoneBook
