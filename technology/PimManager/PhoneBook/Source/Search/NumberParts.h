/// \file
/// Finds parts of numbers.

#pragma once

#include "Search/ContactSet.h"
#include "Search/RankLists.h"

#include <QVector>

#include <string_view>
#include <vector>

namespace PimManager::PhoneBook
{

class NumberStore;

/// Which contacts have which digits in a number: a set for each digit, each pair of digits and several three digits, 30
/// bytes for each contact; and a list for each four digits that begin a number, mostly one byte for each of these of a
/// contact, and 44,000 bytes.
class NumberParts
{
public:
    /// \param a_numbers must outlive this object.
    /// \param a_sorted the contacts in the sorted list; must outlive this object.
    void Build( const NumberStore& a_numbers, const QVector<int>& a_sorted );

    /// Adds the contacts with a number that contains digits.
    /// \param a_digits ASCII digits; not empty.
    void Find( std::string_view a_digits, ContactSet& a_matches ) const;

    /// Adds the contacts with a number that begins with digits.
    /// \param a_digits at least three ASCII digits.
    void FindBeginning( std::string_view a_digits, ContactSet& a_matches ) const;

    /// The memory in bytes.
    size_t Bytes() const;

private:
    /// The list of the beginning of a number.
    struct Beginning
    {
        quint32 m_rank;
        quint32 m_list;
    };

    void AddContact( quint32 a_rank, std::vector<Beginning>& a_beginnings );
    void AddDigitsOfPairs();
    void AddBeginningsOfThree( size_t a_triple, ContactSet& a_matches ) const;
    /// \return contacts of which all that have the digits are.
    ContactSet Candidates( std::string_view a_digits ) const;
    void AddContaining( std::string_view a_digits, const ContactSet& a_candidates, ContactSet& a_matches ) const;
    bool HasBeginning( quint32 a_rank, std::string_view a_digits ) const;
    std::string_view BlockOf( quint32 a_rank ) const;
    const quint64* SetAt( size_t a_set ) const { return m_sets.data() + a_set * m_wordsOfSet; }

    const NumberStore* m_numbers = nullptr;
    const QVector<int>* m_sorted = nullptr;
    // One set after another: those of the pairs from 00 to 99, of the digits, and of three digits.
    std::vector<quint64> m_sets;
    size_t m_wordsOfSet = 0;
    RankLists m_beginnings;
};

} // namespace PimManager::PhoneBook
