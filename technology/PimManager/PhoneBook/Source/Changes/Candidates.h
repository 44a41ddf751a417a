/// \file
/// Contacts of two books that may be the same, because they have a number or mail address in common.

#pragma once

#include "Changes/Person.h"

#include <vector>

namespace PimManager::PhoneBook
{

/// Two contacts with an address in common.
struct Candidate
{
    /// The places of the contacts among the people.
    int m_old;
    int m_new;
    NameAgreement m_agreement = NameAgreement::None;
    /// How many numbers and mail addresses, and how many lines, both have.
    int m_addresses = 0;
    int m_lines = 0;

    bool IsAsGoodAs( const Candidate& a_other ) const;
    /// The best one is first; equally good ones are in the order of the books.
    bool operator<( const Candidate& a_other ) const;
};

/// Finds all candidates whose names agree. In the order of n log n for n addresses.
/// \return each pair once, the best first.
std::vector<Candidate> FindCandidates( const std::vector<Person>& a_old, const std::vector<Person>& a_new,
                                       const PersonTexts& a_texts );

} // namespace PimManager::PhoneBook
