/// \file
/// Which contacts moved.

#pragma once

#include <QVector>

namespace PimManager::PhoneBook
{

/// \param a_numbers different numbers.
/// \return the indices of the fewest numbers without which the others ascend, ascending. In the order of n log n.
QVector<int> FewestMoves( const QVector<int>& a_numbers );

} // namespace PimManager::PhoneBook
