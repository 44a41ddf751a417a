/// \file
/// The steps that turn one list of rows into another.

#pragma once

#include "Model/RowRange.h"

#include <QVector>

#include <vector>

namespace PimManager::PhoneBook
{

/// Rows that are moved together.
struct RowMove
{
    int m_from;
    int m_count;
    /// The first of the rows after the move.
    int m_to;
};

/// Steps in the order in which they are done.
struct RowChanges
{
    /// Rows of the old list, ascending. Remove the last ones first.
    std::vector<RowRange> m_removed;
    /// What is there after the removals: ranges of the new list, in the order of the old one.
    std::vector<RowRange> m_staying;
    /// One after the other.
    std::vector<RowMove> m_moved;
    /// Rows of the new list, ascending. Insert the first ones first.
    std::vector<RowRange> m_inserted;
};

/// Compares two lists of rows. For n rows, the work is in the order of n, and in addition of the square of the number
/// of steps.
///
/// \param a_old  ids, each once, and \a a_ids for any row that is not in the new list.
/// \param a_new  ids from 0 to \a a_ids - 1, each once.
/// \param a_most the number of steps that is not worth its time. If more ranges are removed or stay together, all rows
///               between the equal start and the equal end of both lists are removed and inserted.
/// \return few steps, with the fewest rows moved.
RowChanges RowChangesBetween( const QVector<int>& a_old, const QVector<int>& a_new, int a_ids, int a_most );

} // namespace PimManager::PhoneBook
