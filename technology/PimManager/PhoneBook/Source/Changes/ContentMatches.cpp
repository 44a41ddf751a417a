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

/// Old contacts with equal content, in the order of their book.
struct EqualContacts
{
    std::vector<int> m_contacts;
    size_t m_next = 0;
};

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
        const auto content = std::find_if( contents.begin(), contents.end(),
                                           [&]( const EqualContacts& a_content )
                                           {
                                               const int first = a_content.m_contacts.front();
                                               return a_areEqual( a_book.CardAt( first ), card );
                                           } );
        if ( content != contents.end() )
            content->m_contacts.push_back( contact.m_contact );
        else if ( contents.size() < s_kMostContents )
            contents.push_back( { { contact.m_contact } } );
    }
    return contents;
}

template <typename AreEqual>
void PairRun( BookPairing& a_pairing, const ContactRun& a_old, const ContactRun& a_new, AreEqual a_areEqual,
              PimPhoneBookBasis a_basis, bool a_isSame )
{
    std::vector<EqualContacts> contents = ContentsIn( a_pairing.OldBook(), a_old, a_areEqual );
    for ( const KeyedContact& contact : a_new )
    {
        const PimContactCard& card = a_pairing.NewBook().CardAt( contact.m_contact );
        for ( EqualContacts& content : contents )
        {
            if ( content.m_next == content.m_contacts.size() )
                continue;
            const int old = content.m_contacts[content.m_next];
            if ( !a_areEqual( a_pairing.OldBook().CardAt( old ), card ) )
                continue;
            a_pairing.Pair( old, contact.m_contact, a_basis, a_isSame );
            ++content.m_next;
            break;
        }
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
