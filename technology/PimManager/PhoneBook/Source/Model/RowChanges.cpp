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

/// Compares two lists. An id that a list has twice is different in each place but one.
class RowComparison
{
public:
    RowComparison( const Rows& a_old, const Rows& a_new, int a_ids, int a_most );

    RowChanges Result();

private:
    void MarkOld();
    void CompareNew();
    void CompareOld();
    bool IsTooMuch() const { return m_steps > m_most; }
    int Take( int a_id );

    // Values below 0 in m_targets.
    static constexpr int sm_kNone = -1;
    static constexpr int sm_kOld = -2;

    const Rows m_old;
    const Rows m_new;
    const int m_most;
    int m_steps = 0;
    /// For each id its row in the new list, where only the rows count that are in both lists.
    std::vector<int> m_targets;
    RowChanges m_changes;
    std::vector<RowRange> m_blocks;
};

RowComparison::RowComparison( const Rows& a_old, const Rows& a_new, int a_ids, int a_most ) :
    m_old( a_old ),
    m_new( a_new ),
    m_most( a_most ),
    m_targets( static_cast<size_t>( a_ids ), sm_kNone )
{
}

RowChanges RowComparison::Result()
{
    MarkOld();
    CompareNew();
    if ( !IsTooMuch() )
        CompareOld();
    if ( IsTooMuch() )
        return { { { m_old.m_first, m_old.m_end - m_old.m_first } },
                 {},
                 { { m_new.m_first, m_new.m_end - m_new.m_first } } };
    m_changes.m_moved = MovesThatSort( m_blocks );
    for ( RowMove& move : m_changes.m_moved )
    {
        move.m_from += m_old.m_first;
        move.m_to += m_old.m_first;
    }
    return std::move( m_changes );
}

void RowComparison::MarkOld()
{
    for ( int row = m_old.m_first; row < m_old.m_end; ++row )
    {
        if ( m_old.m_ids[row] >= 0 )
            m_targets[static_cast<size_t>( m_old.m_ids[row] )] = sm_kOld;
    }
}

void RowComparison::CompareNew()
{
    int target = m_new.m_first;
    for ( int row = m_new.m_first; row < m_new.m_end && !IsTooMuch(); ++row )
    {
        int& known = m_targets[static_cast<size_t>( m_new.m_ids[row] )];
        if ( known == sm_kOld )
            known = target++;
        else
            m_steps += AppendRow( m_changes.m_inserted, row );
    }
}

void RowComparison::CompareOld()
{
    for ( int row = m_old.m_first; row < m_old.m_end && !IsTooMuch(); ++row )
    {
        const int target = Take( m_old.m_ids[row] );
        if ( target < 0 )
            m_steps += AppendRow( m_changes.m_removed, row );
        else
            m_steps += AppendRow( m_blocks, target );
    }
}

int RowComparison::Take( int a_id )
{
    return a_id < 0 ? sm_kNone : std::exchange( m_targets[static_cast<size_t>( a_id )], sm_kNone );
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
    if ( start == oldEnd && start == newEnd )
        return {};
    return RowComparison( { oldIds, start, oldEnd }, { newIds, start, newEnd }, a_ids, a_most ).Result();
}

} // namespace PimManager::PhoneBook
