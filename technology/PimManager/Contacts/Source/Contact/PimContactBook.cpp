#include <PimManager/Contacts/PimContactBook.h>

#include "Cards/Ledger.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <QFile>
#include <QIODevice>
#include <QSet>
#include <QSharedData>

#include <algorithm>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kMostWait = 30000;

/// \return a UID in the form for comparisons.
QString KeyOf( const QString& a_uid )
{
    const QString prefix = QStringLiteral( "urn:uuid:" );
    const QString uid = a_uid.toLower();
    return uid.startsWith( prefix ) ? uid.mid( prefix.size() ) : uid;
}

} // namespace

/// The data of a book.
class PimContactBookPrivate : public QSharedData
{
public:
    std::vector<PimContactCard> m_cards;
    PimContactReport m_report;
};

PimContactBook::PimContactBook() :
    d( new PimContactBookPrivate )
{
}

PimContactBook::PimContactBook( const PimContactBook& a_other ) = default;
PimContactBook::PimContactBook( PimContactBook&& a_other ) noexcept = default;
PimContactBook& PimContactBook::operator=( const PimContactBook& a_other ) = default;
PimContactBook& PimContactBook::operator=( PimContactBook&& a_other ) noexcept = default;
PimContactBook::~PimContactBook() = default;

PimContactBook PimContactBook::ReadFile( const QString& a_name, const PimContactOptions& a_options )
{
    QFile file( a_name );
    // Without the buffer of Qt, which the reader does not need.
    if ( file.open( QIODevice::ReadOnly | QIODevice::Unbuffered ) )
        return Read( file, a_options );
    PimContactBook book;
    PimContactReportPrivate::SetError( book.d->m_report, file.errorString() );
    return book;
}

PimContactBook PimContactBook::Read( QIODevice& a_device, const PimContactOptions& a_options )
{
    PimContactBook book;
    std::vector<PimContactCard>& cards = book.d->m_cards;
    PimContactReader reader( a_options );
    reader.SetCardHandler(
        [&cards]( PimContactCard a_card )
        {
            cards.push_back( std::move( a_card ) );
            return true;
        } );
    PimContactCard card;
    // A connection that was closed while waiting reports it in the next call.
    bool isLastTry = false;
    PimContactNext next = PimContactNext::Card;
    while ( next == PimContactNext::Card || ( next == PimContactNext::Waiting && !isLastTry ) )
    {
        if ( next == PimContactNext::Waiting )
            isLastTry = !a_device.waitForReadyRead( s_kMostWait );
        next = reader.Next( a_device, card );
        if ( next == PimContactNext::Card )
            cards.push_back( std::move( card ) );
    }
    reader.Finish();
    book.d->m_report = reader.Report();
    if ( next == PimContactNext::Waiting )
        PimContactReportPrivate::SetError( book.d->m_report, QStringLiteral( "the device sent no more data" ) );
    return book;
}

PimContactBook PimContactBook::FromBytes( const QByteArray& a_bytes, const PimContactOptions& a_options )
{
    PimContactBook book;
    std::vector<PimContactCard>& cards = book.d->m_cards;
    PimContactReader reader( a_options );
    reader.SetCardHandler(
        [&cards]( PimContactCard a_card )
        {
            cards.push_back( std::move( a_card ) );
            return true;
        } );
    reader.Feed( a_bytes );
    reader.Finish();
    book.d->m_report = reader.Report();
    return book;
}

int PimContactBook::Size() const
{
    return static_cast<int>( d->m_cards.size() );
}

bool PimContactBook::IsEmpty() const
{
    return d->m_cards.empty();
}

PimContact PimContactBook::At( int a_index ) const
{
    return PimContact( CardAt( a_index ) );
}

const PimContactCard& PimContactBook::CardAt( int a_index ) const
{
    return d->m_cards[static_cast<size_t>( a_index )];
}

PimContactBook::const_iterator PimContactBook::begin() const
{
    return const_iterator( d->m_cards.data() );
}

PimContactBook::const_iterator PimContactBook::end() const
{
    return const_iterator( d->m_cards.data() + d->m_cards.size() );
}

PimContactBook::CardRange PimContactBook::Cards() const&
{
    return { d->m_cards.data(), d->m_cards.data() + d->m_cards.size() };
}

QList<PimContact> PimContactBook::MembersOf( const PimContact& a_group ) const
{
    QSet<QString> members;
    const PimContactList<PimContactText> addresses = a_group.Members();
    for ( const PimContactText& member : addresses )
        members.insert( KeyOf( member.Text() ) );
    QList<PimContact> contacts;
    if ( members.isEmpty() )
        return contacts;
    for ( const PimContact& contact : *this )
    {
        const QString uid = contact.Uid();
        if ( !uid.isEmpty() && members.contains( KeyOf( uid ) ) )
            contacts.append( contact );
    }
    return contacts;
}

void PimContactBook::Replace( int a_index, const PimContact& a_contact )
{
    if ( !a_contact.IsNull() )
        d->m_cards[static_cast<size_t>( a_index )] = a_contact.Card();
}

void PimContactBook::Append( const PimContactCard& a_card )
{
    if ( !a_card.IsNull() )
        d->m_cards.push_back( a_card );
}

void PimContactBook::Remove( int a_index )
{
    d->m_cards.erase( d->m_cards.begin() + a_index );
}

void PimContactBook::Move( int a_from, int a_to )
{
    const auto cards = d->m_cards.begin();
    if ( a_from < a_to )
        std::rotate( cards + a_from, cards + a_from + 1, cards + a_to + 1 );
    else
        std::rotate( cards + a_to, cards + a_from, cards + a_from + 1 );
}

PimContactReport PimContactBook::Report() const
{
    return d->m_report;
}

bool PimContactBook::operator==( const PimContactBook& a_other ) const
{
    return d->m_cards == a_other.d->m_cards;
}

bool PimContactBook::operator!=( const PimContactBook& a_other ) const
{
    return !( *this == a_other );
}

} // namespace PimManager::Contacts
