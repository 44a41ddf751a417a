#include "Changes/IdentifierMatches.h"

#include "Changes/KeyedContacts.h"
#include "Changes/PersonName.h"
#include "Changes/TextNumbers.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContactBook;

namespace
{

/// \return a key for each contact that has a text.
template <typename TextOf>
KeyedContacts Keyed( const std::vector<int>& a_contacts, TextNumbers& a_numbers, TextOf a_textOf )
{
    KeyedContacts keyed;
    for ( const int contact : a_contacts )
    {
        const QString text = a_textOf( contact );
        if ( !text.isEmpty() )
            keyed.push_back( { a_numbers.NumberOf( text ), contact } );
    }
    return keyed;
}

template <typename IsFree>
std::vector<int> FreeOf( const ContactRun& a_run, IsFree a_isFree )
{
    std::vector<int> free;
    for ( const KeyedContact& contact : a_run )
    {
        if ( a_isFree( contact.m_contact ) )
            free.push_back( contact.m_contact );
    }
    return free;
}

/// Pairs the contacts with one identifier.
class IdentifierGroup
{
public:
    IdentifierGroup( BookPairing& a_pairing, PimPhoneBookBasis a_basis, const ContactRun& a_old,
                     const ContactRun& a_new ) :
        m_pairing( a_pairing ),
        m_basis( a_basis ),
        m_old( a_old ),
        m_new( a_new )
    {
    }

    void Pair( ContentMatches& a_contents )
    {
        if ( m_old.Size() > 1 || m_new.Size() > 1 )
        {
            a_contents.PairEqualContacts( FreeOld( m_old ), FreeNew( m_new ), m_basis );
            PairNames();
        }
        PairInOrder( m_old, m_new );
    }

private:
    std::vector<int> FreeOld( const ContactRun& a_run ) const
    {
        return FreeOf( a_run, [this]( int a_contact ) { return m_pairing.IsOldFree( a_contact ); } );
    }
    std::vector<int> FreeNew( const ContactRun& a_run ) const
    {
        return FreeOf( a_run, [this]( int a_contact ) { return m_pairing.IsNewFree( a_contact ); } );
    }

    void PairNames()
    {
        TextNumbers numbers;
        const auto nameIn = []( const PimContactBook& a_book )
        { return [&a_book]( int a_contact ) { return PersonName( a_book.At( a_contact ) ).Key(); }; };
        KeyedContacts olds = Keyed( FreeOld( m_old ), numbers, nameIn( m_pairing.OldBook() ) );
        KeyedContacts news = Keyed( FreeNew( m_new ), numbers, nameIn( m_pairing.NewBook() ) );
        VisitCommonKeys( olds, news,
                         [this]( const ContactRun& a_old, const ContactRun& a_new ) { PairInOrder( a_old, a_new ); } );
    }

    void PairInOrder( const ContactRun& a_old, const ContactRun& a_new )
    {
        const std::vector<int> olds = FreeOld( a_old );
        const std::vector<int> news = FreeNew( a_new );
        for ( size_t i = 0; i < std::min( olds.size(), news.size() ); ++i )
            m_pairing.Pair( olds[i], news[i], m_basis );
    }

    BookPairing& m_pairing;
    const PimPhoneBookBasis m_basis;
    const ContactRun m_old;
    const ContactRun m_new;
};

} // namespace

void PairByIdentifier( BookPairing& a_pairing, ContentMatches& a_contents, size_t a_identifier,
                       PimPhoneBookBasis a_basis )
{
    TextNumbers numbers;
    KeyedContacts olds =
        Keyed( a_pairing.FreeOld(), numbers,
               [&]( int a_contact ) { return a_pairing.OldIdentifiers( a_contact ).at( a_identifier ); } );
    KeyedContacts news =
        Keyed( a_pairing.FreeNew(), numbers,
               [&]( int a_contact ) { return a_pairing.NewIdentifiers( a_contact ).at( a_identifier ); } );
    VisitCommonKeys( olds, news,
                     [&]( const ContactRun& a_old, const ContactRun& a_new )
                     { IdentifierGroup( a_pairing, a_basis, a_old, a_new ).Pair( a_contents ); } );
}

} // namespace PimManager::PhoneBook
