/// \file
/// Which contact of one book is which of another.

#pragma once

#include "Changes/Identifiers.h"

#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include <QVector>

#include <vector>

namespace PimManager::PhoneBook
{

/// The pairs that were found so far in two books.
class BookPairing
{
public:
    /// \param a_old, a_new must outlive the pairing.
    BookPairing( const Contacts::PimContactBook& a_old, const Contacts::PimContactBook& a_new );

    const Contacts::PimContactBook& OldBook() const { return m_oldBook; }
    const Contacts::PimContactBook& NewBook() const { return m_newBook; }

    bool IsOldFree( int a_old ) const { return m_newOf.at( a_old ) < 0; }
    bool IsNewFree( int a_new ) const { return m_oldOf.at( a_new ) < 0; }
    /// \return true if there are contacts without a partner in both books.
    bool HasFree() const { return m_pairs < m_newOf.size() && m_pairs < m_oldOf.size(); }
    /// The contacts without a partner, ascending.
    std::vector<int> FreeOld() const { return FreeIn( m_newOf ); }
    std::vector<int> FreeNew() const { return FreeIn( m_oldOf ); }

    /// Reads the identifiers of the free contacts. The functions below return them, and none for other contacts.
    void ReadIdentifiers();
    const Identifiers& OldIdentifiers( int a_old ) const { return m_oldIdentifiers[static_cast<size_t>( a_old )]; }
    const Identifiers& NewIdentifiers( int a_new ) const { return m_newIdentifiers[static_cast<size_t>( a_new )]; }

    /// Makes a pair of two contacts that are both free.
    /// \param a_isSame the contacts are known to be equal, apart from identifiers that do not count.
    void Pair( int a_old, int a_new, PimPhoneBookBasis a_basis, bool a_isSame = false );

    const QVector<int>& NewOf() const { return m_newOf; }
    const QVector<int>& OldOf() const { return m_oldOf; }
    /// \param a_new is not free.
    PimPhoneBookPair PairOf( int a_new ) const;
    bool IsKnownSame( int a_new ) const { return ( m_facts.at( a_new ) & s_kIsSame ) != 0; }

private:
    static constexpr quint8 s_kIsSame = 0x80;
    static std::vector<int> FreeIn( const QVector<int>& a_partners );

    const Contacts::PimContactBook& m_oldBook;
    const Contacts::PimContactBook& m_newBook;
    QVector<int> m_newOf;
    QVector<int> m_oldOf;
    std::vector<Identifiers> m_oldIdentifiers;
    std::vector<Identifiers> m_newIdentifiers;
    // For each new contact: the basis of its pair, and s_kIsSame.
    QVector<quint8> m_facts;
    int m_pairs = 0;
};

} // namespace PimManager::PhoneBook
