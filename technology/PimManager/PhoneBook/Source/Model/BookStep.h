/// \file
/// What became of the contacts of a phone book in the next one.

#pragma once

#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <QVector>

namespace PimManager::PhoneBook
{

struct BookStep
{
    PimPhoneBook m_from;
    /// The index of each contact in the next book; -1 if it is gone.
    QVector<int> m_newOf;
    /// The contacts whose rows look different, as indexes in the next book.
    QVector<int> m_changed;
};

/// Compares two phone books.
BookStep StepBetween( const PimPhoneBook& a_from, const PimPhoneBook& a_to );

/// \return the step to a book that has the same contacts and further ones after them.
BookStep StepOfGrowth( const PimPhoneBook& a_from );

/// \return true if two phone books share the memory of one book. Constant time.
bool IsSameBook( const PimPhoneBook& a_first, const PimPhoneBook& a_second );

} // namespace PimManager::PhoneBook
