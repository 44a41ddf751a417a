/// \file
/// A list of rows that changes step by step.

#pragma once

#include "Model/RowChanges.h"
#include "Model/RowRange.h"

#include <QVector>

#include <cstddef>
#include <vector>

namespace PimManager::PhoneBook
{

/// The ids of rows. A step copies no ids: between the steps, the list consists of ranges of the old or the new list. So
/// a step is linear in the number of ranges, and so is a look at a row.
class RowList
{
public:
    int Size() const { return m_size; }
    int IdAt( int a_row ) const;

    /// The ids of all rows. Only valid before the first step and after the last one.
    const QVector<int>& Ids() const { return m_ids; }

    /// \param a_rows the rows to remove.
    void Remove( const RowRange& a_rows );
    /// After the removals: goes on with the new list.
    /// \param a_staying the ranges of the new list that the list consists of now, in their present order.
    void SetNewIds( const QVector<int>& a_ids, const std::vector<RowRange>& a_staying );
    void Move( const RowMove& a_move );
    /// \param a_rows the rows of the new list to insert. All rows before them are there already.
    void Insert( const RowRange& a_rows );
    /// After all steps.
    void Finish();

private:
    using Ranges = std::vector<RowRange>;

    std::ptrdiff_t Cut( int a_row );

    QVector<int> m_ids;
    Ranges m_ranges;
    int m_size = 0;
};

} // namespace PimManager::PhoneBook
