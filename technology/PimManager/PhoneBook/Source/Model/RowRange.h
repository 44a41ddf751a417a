/// \file
/// Rows below each other.

#pragma once

#include <vector>

namespace PimManager::PhoneBook
{

struct RowRange
{
    int m_first;
    int m_count;
};

/// Adds a row to the last range if it follows on it, or else begins a new range.
/// \return the number of new ranges.
inline int AppendRow( std::vector<RowRange>& a_ranges, int a_row )
{
    if ( !a_ranges.empty() && a_ranges.back().m_first + a_ranges.back().m_count == a_row )
    {
        ++a_ranges.back().m_count;
        return 0;
    }
    a_ranges.push_back( { a_row, 1 } );
    return 1;
}

} // namespace PimManager::PhoneBook
