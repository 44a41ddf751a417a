/// \file
/// Finds the numbers of a phone book that end with the same digits.

#pragma once

#include "Numbers/CallingCodes.h"
#include "Numbers/NumberStore.h"
#include "Numbers/WrittenNumber.h"

#include <PimManager/PhoneBook/PimPhoneBookMatch.h>

#include <QVector>

#include <vector>

namespace PimManager::PhoneBook
{

struct DialledNumber;

/// An index of the numbers of a NumberStore: about five bytes for each number.
class CallerIndex
{
public:
    CallerIndex() = default;
    /// Indexes all numbers. Linear in their number.
    /// \param a_home how the user of the phone book dials.
    /// \param a_endingDigits the number of last digits for PimPhoneBookGrade::Ending.
    CallerIndex( const NumberStore& a_numbers, const Home& a_home, int a_endingDigits );

    /// \param a_numbers the numbers that were indexed.
    /// \return the contacts that have a number, the best grade first, and in the order of the book within a grade; each
    ///         contact once. Linear in the number of equal endings.
    QVector<PimPhoneBookCaller> Find( const NumberStore& a_numbers, const WrittenNumber& a_number ) const;

    /// The memory in bytes.
    size_t Bytes() const { return ( m_begins.capacity() + m_numbers.capacity() ) * sizeof( quint32 ); }

private:
    quint32 BucketOf( quint32 a_hash ) const;
    /// The bits of a hash value that are stored with a number.
    quint32 TagOf( quint32 a_hash ) const { return a_hash << m_numberBits; }
    quint32 NumberOf( quint32 a_entry ) const { return a_entry & ~( ~0U << m_numberBits ); }
    PimPhoneBookGrade GradeWith( const NumberStore& a_numbers, int a_number, const DialledNumber& a_dialled,
                                 std::string_view a_extension ) const;

    Home m_home;
    size_t m_endingDigits = 0;
    // So many low bits of an entry are the number. The others are the low bits of its hash value, which tell most of
    // the other numbers in a bucket, where the high bits are equal, without a look at their digits.
    uint m_numberBits = 0;
    // The entries of bucket b are m_numbers[m_begins[b]] to m_numbers[m_begins[b + 1] - 1], ascending.
    std::vector<quint32> m_begins;
    std::vector<quint32> m_numbers;
};

} // namespace PimManager::PhoneBook
