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
    /// How much speaks for them, apart from the name: numbers, mail addresses and lines that both have, and against
    /// them numbers and mail addresses of both that the other has not.
    int m_evidence = 0;

    bool IsAsGoodAs( const Candidate& a_other ) const;
    /// The best one is first; equally good ones are in the order of the books.
    bool operator<( const Candidate& a_other ) const;
};

/// Finds all candidates whose names agree. In the order of n log n for n addresses.
/// \param a_doUidsCount contacts with different UIDs are no candidates.
/// \return each pair once, the best first.
std::vector<Candidate> FindCandidates( const std::vector<Person>& a_old, const std::vector<Person>& a_new,
                                       const PersonTexts& a_texts, bool a_doUidsCount );

} // namespace PimManager::PhoneBook
