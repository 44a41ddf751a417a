#include "Model/BlockMoves.h"

#include <algorithm>
#include <numeric>

namespace PimManager::PhoneBook
{

namespace
{

/// A sequence of blocks with ascending places.
struct Ascent
{
    int m_rows = 0;
    /// The last block, or -1.
    int m_last = -1;
};

/// The heaviest ascents by the place of their last block, as a Fenwick tree.
class Ascents
{
public:
    explicit Ascents( size_t a_places ) :
        m_tree( a_places + 1 )
    {
    }

    /// \return the heaviest of those that end before a place.
    Ascent HeaviestBefore( size_t a_place ) const
    {
        Ascent heaviest;
        for ( size_t node = a_place; node > 0; node &= node - 1 )
            heaviest = Heavier( heaviest, m_tree[node] );
        return heaviest;
    }

    void Add( size_t a_place, const Ascent& a_ascent )
    {
        for ( size_t node = a_place + 1; node < m_tree.size(); node += node & ( ~node + 1 ) )
            m_tree[node] = Heavier( m_tree[node], a_ascent );
    }

private:
    static Ascent Heavier( const Ascent& a_first, const Ascent& a_second )
    {
        return a_second.m_rows > a_first.m_rows ? a_second : a_first;
    }

    std::vector<Ascent> m_tree;
};

/// Sorts blocks by moving those that are not in the heaviest ascent.
class BlockSorter
{
public:
    explicit BlockSorter( const std::vector<RowRange>& a_blocks );

    std::vector<RowMove> Moves();

private:
    void FindStaying();
    RowMove MoveBehind( int a_block, int a_before );
    int RowsBefore( std::vector<int>::const_iterator a_place ) const;

    const std::vector<RowRange>& m_blocks;
    /// The blocks in their present order, and sorted.
    std::vector<int> m_present;
    std::vector<int> m_sorted;
    std::vector<bool> m_isStaying;
};

BlockSorter::BlockSorter( const std::vector<RowRange>& a_blocks ) :
    m_blocks( a_blocks ),
    m_present( a_blocks.size() ),
    m_isStaying( a_blocks.size() )
{
    std::iota( m_present.begin(), m_present.end(), 0 );
    m_sorted = m_present;
    std::sort( m_sorted.begin(), m_sorted.end(),
               [&]( int a_first, int a_second ) {
                   return m_blocks[static_cast<size_t>( a_first )].m_first <
                          m_blocks[static_cast<size_t>( a_second )].m_first;
               } );
}

void BlockSorter::FindStaying()
{
    const size_t count = m_blocks.size();
    std::vector<size_t> places( count );
    for ( size_t place = 0; place < count; ++place )
        places[static_cast<size_t>( m_sorted[place] )] = place;
    std::vector<int> previous( count );
    Ascents ascents( count );
    for ( size_t block = 0; block < count; ++block )
    {
        const Ascent ascent = ascents.HeaviestBefore( places[block] );
        previous[block] = ascent.m_last;
        ascents.Add( places[block], { ascent.m_rows + m_blocks[block].m_count, static_cast<int>( block ) } );
    }
    for ( int block = ascents.HeaviestBefore( count ).m_last; block >= 0;
          block = previous[static_cast<size_t>( block )] )
        m_isStaying[static_cast<size_t>( block )] = true;
}

std::vector<RowMove> BlockSorter::Moves()
{
    FindStaying();
    std::vector<RowMove> moves;
    int before = -1;
    for ( const int block : m_sorted )
    {
        if ( !m_isStaying[static_cast<size_t>( block )] )
            moves.push_back( MoveBehind( block, before ) );
        before = block;
    }
    return moves;
}

RowMove BlockSorter::MoveBehind( int a_block, int a_before )
{
    const auto from = std::find( m_present.begin(), m_present.end(), a_block );
    RowMove move = { RowsBefore( from ), m_blocks[static_cast<size_t>( a_block )].m_count, 0 };
    m_present.erase( from );
    auto to = m_present.begin();
    if ( a_before >= 0 )
        to = std::find( m_present.begin(), m_present.end(), a_before ) + 1;
    move.m_to = RowsBefore( to );
    m_present.insert( to, a_block );
    return move;
}

int BlockSorter::RowsBefore( std::vector<int>::const_iterator a_place ) const
{
    return std::accumulate( m_present.begin(), a_place, 0,
                            [&]( int a_rows, int a_block )
                            { return a_rows + m_blocks[static_cast<size_t>( a_block )].m_count; } );
}

} // namespace

std::vector<RowMove> MovesThatSort( const std::vector<RowRange>& a_blocks )
{
    if ( a_blocks.size() < 2 )
        return {};
    return BlockSorter( a_blocks ).Moves();
}

} // namespace PimManager::PhoneBook
