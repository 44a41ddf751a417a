/// \file
/// Pairs of contacts with equal content.

#pragma once

#include "Changes/BookPairing.h"

#include <QLatin1String>
#include <QList>

#include <vector>

namespace PimManager::PhoneBook
{

/// Finds pairs of contacts with equal content. Nothing is concluded from equal hashes alone.
class ContentMatches
{
public:
    /// \param a_pairing must outlive the object.
    explicit ContentMatches( BookPairing& a_pairing );

    /// Pairs contacts that have the same lines, identifiers included.
    void PairSameCards();
    /// Pairs contacts that are equal apart from their identifiers, which the pairing has read.
    /// \param a_old, a_new free contacts, ascending.
    void PairEqualContacts( const std::vector<int>& a_old, const std::vector<int>& a_new, PimPhoneBookBasis a_basis );

private:
    template <typename PairRun>
    void VisitRuns( const std::vector<int>& a_old, const std::vector<int>& a_new, const QList<QLatin1String>& a_except,
                    PairRun a_pairRun );

    BookPairing& m_pairing;
    const quint64 m_seed;
};

} // namespace PimManager::PhoneBook
