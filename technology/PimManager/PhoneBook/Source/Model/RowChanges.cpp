#include "Model/RowChanges.h"

#include "Model/BlockMoves.h"
#include "Model/RowRange.h"

#include <algorithm>
#include <utility>

namespace PimManager::PhoneBook
{

namespace
{

/// The part of a list in which it differs from another one.
struct Rows
{
    const int* m_ids;
    int m_first;
    int m_end;
};

/// Compares two lists.
class RowComparison
{
public:
    RowComparison( const Rows& a_old, const Rows& a_new, int a_ids, int a_most );

    RowChanges Result();

private:
    void FindNewRows();
    bool CompareOld();
    int NewRowOf( int a_oldRow ) const;
    bool FindInserted();
    void AddInserted( int a_first, int a_end );
    std::vector<RowRange> MergedBlocks() const;

    static constexpr int sm_kNone = -1;

    const Rows m_old;
    const Rows m_new;
    const int m_most;
    /// The row of each id in the new list, and for the rows without an id none.
    std::vector<int> m_newRows;
    RowChanges m_changes;
    /// Rows of the new list that are below each other in the old one too, in the order of the old list.
    std::vector<RowRange> m_blocks;
};

RowComparison::RowComparison( const Rows& a_old, const Rows& a_new, int a_ids, int a_most ) :
    m_old( a_old ),
    m_new( a_new ),
    m_most( a_most ),
    m_newRows( static_cast<size_t>( a_ids ) + 1, sm_kNone )
{
}

RowChanges RowComparison::Result()
{
    FindNewRows();
    if ( !CompareOld() || !FindInserted() )
        return { { { m_old.m_first, m_old.m_end - m_old.m_first } },
                 {},
                 {},
                 { { m_new.m_first, m_new.m_end - m_new.m_first } } };
    m_changes.m_moved = MovesThatSort( MergedBlocks() );
    for ( RowMove& move : m_changes.m_moved )
    {
        move.m_from += m_old.m_first;
        move.m_to += m_old.m_first;
    }
    return std::move( m_changes );
}

void RowComparison::FindNewRows()
{
    for ( int row = m_new.m_first; row < m_new.m_end; ++row )
        m_newRows[static_cast<size_t>( m_new.m_ids[row] )] = row;
}

// Once for each row in the worst case, so the inner loops are as short as possible.
bool RowComparison::CompareOld()
{
    int steps = 0;
    for ( int row = m_old.m_first; row < m_old.m_end; ++steps )
    {
        if ( steps == m_most )
            return false;
        const int first = row;
        const int newRow = NewRowOf( row );
        if ( newRow == sm_kNone )
        {
            while ( ++row < m_old.m_end && NewRowOf( row ) == sm_kNone )
                continue;
            m_changes.m_removed.push_back( { first, row - first } );
        }
        else
        {
            while ( ++row < m_old.m_end && NewRowOf( row ) == newRow + row - first )
                continue;
            m_blocks.push_back( { newRow, row - first } );
        }
    }
    return true;
}

int RowComparison::NewRowOf( int a_oldRow ) const
{
    return m_newRows[static_cast<size_t>( m_old.m_ids[a_oldRow] )];
}

// The rows between the blocks. Then the blocks get the rows that they have without these.
bool RowComparison::FindInserted()
{
    m_changes.m_staying = m_blocks;
    std::vector<RowRange*> sorted;
    for ( RowRange& block : m_blocks )
        sorted.push_back( &block );
    std::sort( sorted.begin(), sorted.end(),
               []( const RowRange* a_first, const RowRange* a_second )
               { return a_first->m_first < a_second->m_first; } );
    int row = m_new.m_first;
    int target = 0;
    for ( RowRange* const block : sorted )
    {
        if ( block->m_first < row )
            return false; // an id that the old list has twice
        AddInserted( row, block->m_first );
        row = block->m_first + block->m_count;
        block->m_first = target;
        target += block->m_count;
    }
    AddInserted( row, m_new.m_end );
    return true;
}

void RowComparison::AddInserted( int a_first, int a_end )
{
    if ( a_first < a_end )
        m_changes.m_inserted.push_back( { a_first, a_end - a_first } );
}

std::vector<RowRange> RowComparison::MergedBlocks() const
{
    std::vector<RowRange> merged;
    for ( const RowRange& block : m_blocks )
    {
        if ( !merged.empty() && merged.back().m_first + merged.back().m_count == block.m_first )
            merged.back().m_count += block.m_count;
        else
            merged.push_back( block );
    }
    return merged;
}

/// Adds the equal rows at the start and at the end.
void AddEqualRows( std::vector<RowRange>& a_staying, int a_start, const RowRange& a_end )
{
    if ( a_start > 0 )
        a_staying.insert( a_staying.begin(), { 0, a_start } );
    if ( a_end.m_count > 0 )
        a_staying.push_back( a_end );
}

} // namespace

RowChanges RowChangesBetween( const QVector<int>& a_old, const QVector<int>& a_new, int a_ids, int a_most )
{
    const int* oldIds = a_old.constData();
    const int* newIds = a_new.constData();
    auto oldEnd = static_cast<int>( a_old.size() );
    auto newEnd = static_cast<int>( a_new.size() );
    const auto start =
        static_cast<int>( std::mismatch( oldIds, oldIds + std::min( oldEnd, newEnd ), newIds ).first - oldIds );
    while ( oldEnd > start && newEnd > start && oldIds[oldEnd - 1] == newIds[newEnd - 1] )
    {
        --oldEnd;
        --newEnd;
    }
    RowChanges changes;
    if ( start < oldEnd || start < newEnd )
        changes = RowComparison( { oldIds, start, oldEnd }, { newIds, start, newEnd }, a_ids, a_most ).Result();
    AddEqualRows( changes.m_staying, start, { newEnd, static_cast<int>( a_new.size() ) - newEnd } );
    return changes;
}

} // namespace PimManager::PhoneBook
