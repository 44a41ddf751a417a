#include "Changes/BookPairing.h"

namespace PimManager::PhoneBook
{

BookPairing::BookPairing( const Contacts::PimContactBook& a_old, const Contacts::PimContactBook& a_new ) :
    m_oldBook( a_old ),
    m_newBook( a_new ),
    m_newOf( a_old.Size(), -1 ),
    m_oldOf( a_new.Size(), -1 ),
    m_facts( a_new.Size(), 0 )
{
}

std::vector<int> BookPairing::FreeIn( const QVector<int>& a_partners )
{
    std::vector<int> free;
    for ( int i = 0; i < a_partners.size(); ++i )
    {
        if ( a_partners.at( i ) < 0 )
            free.push_back( i );
    }
    return free;
}

void BookPairing::ReadIdentifiers()
{
    m_oldIdentifiers.resize( static_cast<size_t>( m_newOf.size() ) );
    m_newIdentifiers.resize( static_cast<size_t>( m_oldOf.size() ) );
    for ( const int contact : FreeOld() )
        m_oldIdentifiers[static_cast<size_t>( contact )] = IdentifiersOf( m_oldBook.CardAt( contact ) );
    for ( const int contact : FreeNew() )
        m_newIdentifiers[static_cast<size_t>( contact )] = IdentifiersOf( m_newBook.CardAt( contact ) );
}

void BookPairing::Pair( int a_old, int a_new, PimPhoneBookBasis a_basis, bool a_isSame )
{
    Q_ASSERT( IsOldFree( a_old ) && IsNewFree( a_new ) );
    m_newOf[a_old] = a_new;
    m_oldOf[a_new] = a_old;
    m_facts[a_new] = static_cast<quint8>( static_cast<quint8>( a_basis ) | ( a_isSame ? s_kIsSame : 0 ) );
    ++m_pairs;
}

PimPhoneBookPair BookPairing::PairOf( int a_new ) const
{
    return { m_oldOf.at( a_new ), a_new, static_cast<PimPhoneBookBasis>( m_facts.at( a_new ) & ~s_kIsSame ) };
}

} // namespace PimManager::PhoneBook
