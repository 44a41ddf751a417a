#include "Model/RowList.h"

namespace PimManager::PhoneBook
{

int RowList::IdAt( int a_row ) const
{
    auto range = m_ranges.begin();
    int row = a_row;
    for ( ; row >= range->m_count; ++range )
        row -= range->m_count;
    return m_ids.at( range->m_first + row );
}

void RowList::Remove( const RowRange& a_rows )
{
    const auto first = Cut( a_rows.m_first );
    const auto end = Cut( a_rows.m_first + a_rows.m_count );
    m_ranges.erase( m_ranges.begin() + first, m_ranges.begin() + end );
    m_size -= a_rows.m_count;
}

void RowList::SetNewIds( const QVector<int>& a_ids, const std::vector<RowRange>& a_staying )
{
    m_ids = a_ids;
    m_ranges = a_staying;
}

void RowList::Move( const RowMove& a_move )
{
    const auto first = Cut( a_move.m_from );
    const auto end = Cut( a_move.m_from + a_move.m_count );
    const Ranges moved( m_ranges.begin() + first, m_ranges.begin() + end );
    m_ranges.erase( m_ranges.begin() + first, m_ranges.begin() + end );
    const auto to = Cut( a_move.m_to );
    m_ranges.insert( m_ranges.begin() + to, moved.begin(), moved.end() );
}

void RowList::Insert( const RowRange& a_rows )
{
    const auto place = Cut( a_rows.m_first );
    m_ranges.insert( m_ranges.begin() + place, a_rows );
    m_size += a_rows.m_count;
}

void RowList::Finish()
{
    m_size = static_cast<int>( m_ids.size() );
    m_ranges = { { 0, m_size } };
}

/// Cuts the range that contains a row before it.
/// \return the place of the range that begins with the row; the number of ranges after the last row.
std::ptrdiff_t RowList::Cut( int a_row )
{
    auto range = m_ranges.begin();
    int before = 0;
    for ( ; range != m_ranges.end() && before + range->m_count <= a_row; ++range )
        before += range->m_count;
    const int cut = a_row - before;
    if ( cut > 0 )
    {
        const RowRange rest = { range->m_first + cut, range->m_count - cut };
        range->m_count = cut;
        range = m_ranges.insert( range + 1, rest );
    }
    return range - m_ranges.begin();
}

} // namespace PimManager::PhoneBook
