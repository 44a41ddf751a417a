#include "Changes/ContentMatches.h"

#include "Changes/Identifiers.h"
#include "Changes/KeyedContacts.h"

#include <QRandomGenerator>

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContactBook;
using Contacts::PimContactCard;

namespace
{

// So many different contents with one hash are told apart. More occur only if cards were made for it.
constexpr size_t s_kMostContents = 8;

/// Contacts of one book with equal content, in its order.
using EqualContacts = std::vector<int>;

KeyedContacts Hashed( const PimContactBook& a_book, const std::vector<int>& a_contacts, quint64 a_seed,
                      const QList<QLatin1String>& a_except )
{
    KeyedContacts hashed;
    hashed.reserve( a_contacts.size() );
    for ( const int contact : a_contacts )
        hashed.push_back( { a_book.CardAt( contact ).ContentHash( a_seed, a_except ), contact } );
    return hashed;
}

template <typename AreEqual>
std::vector<EqualContacts> ContentsIn( const PimContactBook& a_book, const ContactRun& a_run, AreEqual a_areEqual )
{
    std::vector<EqualContacts> contents;
    for ( const KeyedContact& contact : a_run )
    {
        const PimContactCard& card = a_book.CardAt( contact.m_contact );
        const auto same = std::find_if( contents.begin(), contents.end(),
                                        [&]( const EqualContacts& a_contacts )
                                        { return a_areEqual( a_book.CardAt( a_contacts.front() ), card ); } );
        if ( same != contents.end() )
            same->push_back( contact.m_contact );
        else if ( contents.size() < s_kMostContents )
            contents.push_back( { contact.m_contact } );
    }
    return contents;
}

template <typename AreEqual>
void PairRun( BookPairing& a_pairing, const ContactRun& a_old, const ContactRun& a_new, AreEqual a_areEqual,
              PimPhoneBookBasis a_basis, bool a_isSame )
{
    if ( a_old.Size() == 1 && a_new.Size() == 1 )
    {
        const int old = a_old.begin()->m_contact;
        const int other = a_new.begin()->m_contact;
        if ( a_areEqual( a_pairing.OldBook().CardAt( old ), a_pairing.NewBook().CardAt( other ) ) )
            a_pairing.Pair( old, other, a_basis, a_isSame );
        return;
    }
    const std::vector<EqualContacts> olds = ContentsIn( a_pairing.OldBook(), a_old, a_areEqual );
    const std::vector<EqualContacts> news = ContentsIn( a_pairing.NewBook(), a_new, a_areEqual );
    for ( const EqualContacts& old : olds )
    {
        const PimContactCard& card = a_pairing.OldBook().CardAt( old.front() );
        const auto same = std::find_if( news.begin(), news.end(),
                                        [&]( const EqualContacts& a_contacts ) {
                                            return a_areEqual( card, a_pairing.NewBook().CardAt( a_contacts.front() ) );
                                        } );
        const size_t pairs = same == news.end() ? 0 : std::min( old.size(), same->size() );
        for ( size_t i = 0; i < pairs; ++i )
            a_pairing.Pair( old[i], ( *same )[i], a_basis, a_isSame );
    }
}

} // namespace

ContentMatches::ContentMatches( BookPairing& a_pairing ) :
    m_pairing( a_pairing ),
    m_seed( QRandomGenerator::global()->generate64() )
{
}

template <typename PairRun>
void ContentMatches::VisitRuns( const std::vector<int>& a_old, const std::vector<int>& a_new,
                                const QList<QLatin1String>& a_except, PairRun a_pairRun )
{
    KeyedContacts olds = Hashed( m_pairing.OldBook(), a_old, m_seed, a_except );
    KeyedContacts news = Hashed( m_pairing.NewBook(), a_new, m_seed, a_except );
    VisitCommonKeys( olds, news, a_pairRun );
}

void ContentMatches::PairSameCards()
{
    const auto areSame = []( const PimContactCard& a_first, const PimContactCard& a_second )
    { return a_first.HasSameLines( a_second ); };
    VisitRuns( m_pairing.FreeOld(), m_pairing.FreeNew(), {},
               [&]( const ContactRun& a_old, const ContactRun& a_new )
               { PairRun( m_pairing, a_old, a_new, areSame, PimPhoneBookBasis::Content, true ); } );
}

void ContentMatches::PairEqualContacts( const std::vector<int>& a_old, const std::vector<int>& a_new,
                                        PimPhoneBookBasis a_basis )
{
    const QList<QLatin1String> except = IdentifierNames() + QList<QLatin1String>{ QLatin1String( "VERSION" ) };
    VisitRuns( a_old, a_new, except,
               [&]( const ContactRun& a_oldRun, const ContactRun& a_newRun )
               { PairRun( m_pairing, a_oldRun, a_newRun, AreEqualButForIdentifiers, a_basis, false ); } );
}

} // namespace PimManager::PhoneBook
