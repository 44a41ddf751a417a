/// \file
/// The moves that sort blocks of rows.

#pragma once

#include "Model/RowChanges.h"
#include "Model/RowRange.h"

#include <vector>

namespace PimManager::PhoneBook
{

/// \param a_blocks rows that are below each other before and after a change of the order, as ranges of rows after it.
///                 The blocks are in the order before the change.
/// \return the moves with the fewest rows that sort the blocks by their rows, in the order in which they are done.
///         At most quadratic in the number of blocks.
std::vector<RowMove> MovesThatSort( const std::vector<RowRange>& a_blocks );

} // namespace PimManager::PhoneBook
