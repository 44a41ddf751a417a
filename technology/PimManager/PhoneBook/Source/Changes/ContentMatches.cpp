#include "Changes/ContentMatches.h"

#include "Changes/Identifiers.h"
#include "Changes/KeyedContacts.h"

#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <utility>

namespace PimManager::PhoneBook
{

using Contacts::PimContactBook;
using Contacts::PimContactCard;

namespace
{

// So many different contents with one hash are told apart. More occur only if cards were made for it.
constexpr size_t s_kMostContents = 8;

// The sets of identifiers, with a bit for each. Sets with a common one are last. Contacts with more identifiers fit
// fewer others, so they are first.
constexpr size_t s_kIdentifierSets = size_t( 1 ) << s_kIdentifiers;
constexpr std::array<std::pair<size_t, size_t>, s_kIdentifierSets* s_kIdentifierSets> s_kIdentifierOrder = {
    { { 3, 0 },
      { 0, 3 },
      { 1, 2 },
      { 2, 1 },
      { 1, 0 },
      { 0, 1 },
      { 2, 0 },
      { 0, 2 },
      { 0, 0 },
      { 1, 1 },
      { 2, 2 },
      { 3, 3 },
      { 1, 3 },
      { 3, 1 },
      { 2, 3 },
      { 3, 2 } } };

/// Contacts of one book with equal content, in its order.
using EqualContacts = std::vector<int>;

size_t SetOf( const Identifiers& a_identifiers )
{
    size_t set = 0;
    for ( size_t i = 0; i < s_kIdentifiers; ++i )
        set |= a_identifiers.at( i ).isEmpty() ? 0 : size_t( 1 ) << i;
    return set;
}

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

/// Pairs contacts that are equal.
class EqualContactsPairing
{
public:
    EqualContactsPairing( BookPairing& a_pairing, PimPhoneBookBasis a_basis, bool a_haveSameLines ) :
        m_pairing( a_pairing ),
        m_basis( a_basis ),
        m_haveSameLines( a_haveSameLines )
    {
    }

    template <typename AreEqual>
    void PairRuns( const ContactRun& a_old, const ContactRun& a_new, AreEqual a_areEqual )
    {
        if ( a_old.Size() == 1 && a_new.Size() == 1 )
        {
            const int old = a_old.begin()->m_contact;
            const int other = a_new.begin()->m_contact;
            if ( a_areEqual( OldCard( old ), NewCard( other ) ) )
                Pair( old, other );
            return;
        }
        const std::vector<EqualContacts> olds = ContentsIn( m_pairing.OldBook(), a_old, a_areEqual );
        const std::vector<EqualContacts> news = ContentsIn( m_pairing.NewBook(), a_new, a_areEqual );
        for ( const EqualContacts& old : olds )
        {
            const auto same =
                std::find_if( news.begin(), news.end(),
                              [&]( const EqualContacts& a_contacts )
                              { return a_areEqual( OldCard( old.front() ), NewCard( a_contacts.front() ) ); } );
            if ( same != news.end() )
                PairAll( old, *same );
        }
    }

private:
    // An identifier that both have counts.
    void Pair( int a_old, int a_new )
    {
        const bool isSame = m_haveSameLines || ( OldSet( a_old ) & NewSet( a_new ) ) == 0;
        m_pairing.Pair( a_old, a_new, m_basis, isSame );
    }

    size_t OldSet( int a_old ) const { return SetOf( m_pairing.OldIdentifiers( a_old ) ); }
    size_t NewSet( int a_new ) const { return SetOf( m_pairing.NewIdentifiers( a_new ) ); }
    const PimContactCard& OldCard( int a_old ) const { return m_pairing.OldBook().CardAt( a_old ); }
    const PimContactCard& NewCard( int a_new ) const { return m_pairing.NewBook().CardAt( a_new ); }

    // Contacts with the same identifier are already paired. So two contacts with an identifier of one kind differ in
    // it, and are paired last.
    void PairAll( const EqualContacts& a_old, const EqualContacts& a_new )
    {
        if ( m_haveSameLines )
            return PairInOrder( EqualContacts( a_old ), EqualContacts( a_new ) );
        std::array<EqualContacts, s_kIdentifierSets> olds;
        std::array<EqualContacts, s_kIdentifierSets> news;
        for ( const int contact : a_old )
            olds.at( OldSet( contact ) ).push_back( contact );
        for ( const int contact : a_new )
            news.at( NewSet( contact ) ).push_back( contact );
        for ( const auto& [old, other] : s_kIdentifierOrder )
            PairInOrder( olds.at( old ), news.at( other ) );
    }

    /// Removes the contacts that were paired.
    void PairInOrder( EqualContacts&& a_old, EqualContacts&& a_new ) { PairInOrder( a_old, a_new ); }
    void PairInOrder( EqualContacts& a_old, EqualContacts& a_new )
    {
        const auto pairs = static_cast<int>( std::min( a_old.size(), a_new.size() ) );
        for ( int i = 0; i < pairs; ++i )
            Pair( a_old[static_cast<size_t>( i )], a_new[static_cast<size_t>( i )] );
        a_old.erase( a_old.begin(), a_old.begin() + pairs );
        a_new.erase( a_new.begin(), a_new.begin() + pairs );
    }

    BookPairing& m_pairing;
    const PimPhoneBookBasis m_basis;
    const bool m_haveSameLines;
};

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
    EqualContactsPairing pairing( m_pairing, PimPhoneBookBasis::Content, true );
    VisitRuns( m_pairing.FreeOld(), m_pairing.FreeNew(), {},
               [&]( const ContactRun& a_old, const ContactRun& a_new ) { pairing.PairRuns( a_old, a_new, areSame ); } );
}

void ContentMatches::PairEqualContacts( const std::vector<int>& a_old, const std::vector<int>& a_new,
                                        PimPhoneBookBasis a_basis )
{
    const QList<QLatin1String> except = IdentifierNames() + QList<QLatin1String>{ QLatin1String( "VERSION" ) };
    const auto areEqual = []( const PimContactCard& a_first, const PimContactCard& a_second )
    { return AreEqualWithout( a_first, a_second, IdentifierNames() ); };
    EqualContactsPairing pairing( m_pairing, a_basis, false );
    VisitRuns( a_old, a_new, except,
               [&]( const ContactRun& a_oldRun, const ContactRun& a_newRun )
               { pairing.PairRuns( a_oldRun, a_newRun, areEqual ); } );
}

} // namespace PimManager::PhoneBook
