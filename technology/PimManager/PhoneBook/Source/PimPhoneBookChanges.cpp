#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include "Changes/BookPairing.h"
#include "Changes/ContentMatches.h"
#include "Changes/IdentifierMatches.h"
#include "Changes/Identifiers.h"
#include "Changes/LineDifferences.h"
#include "Changes/Moves.h"
#include "Changes/NameMatches.h"

#include <QSharedData>

#include <array>

namespace PimManager::PhoneBook
{

using Contacts::PimContact;
using Contacts::PimContactBook;

namespace
{

// In the order of IdentifierNames().
constexpr std::array<PimPhoneBookBasis, s_kIdentifiers> s_kIdentifierBases = { PimPhoneBookBasis::Uid,
                                                                               PimPhoneBookBasis::BluetoothUid };

void PairContacts( BookPairing& a_pairing, const PimPhoneBookOptions& a_options )
{
    ContentMatches contents( a_pairing );
    contents.PairSameCards();
    if ( a_pairing.HasFree() )
        a_pairing.ReadIdentifiers();
    for ( size_t i = 0; a_pairing.HasFree() && i < s_kIdentifiers; ++i )
        PairByIdentifier( a_pairing, contents, i, s_kIdentifierBases.at( i ) );
    if ( a_pairing.HasFree() )
        contents.PairEqualContacts( a_pairing.FreeOld(), a_pairing.FreeNew(), PimPhoneBookBasis::Content );
    if ( a_pairing.HasFree() )
        PairByName( a_pairing, a_options );
}

bool IsChanged( const BookPairing& a_pairing, const PimPhoneBookPair& a_pair )
{
    if ( a_pairing.IsKnownSame( a_pair.m_new ) )
        return false;
    const QList<QLatin1String> ignored =
        IgnoredIdentifiers( a_pairing.OldIdentifiers( a_pair.m_old ), a_pairing.NewIdentifiers( a_pair.m_new ) );
    return !AreEqualWithout( a_pairing.OldBook().CardAt( a_pair.m_old ), a_pairing.NewBook().CardAt( a_pair.m_new ),
                             ignored );
}

QVector<int> WithoutPartner( const QVector<int>& a_partners )
{
    QVector<int> contacts;
    for ( int i = 0; i < a_partners.size(); ++i )
    {
        if ( a_partners.at( i ) < 0 )
            contacts.append( i );
    }
    return contacts;
}

} // namespace

class PimPhoneBookChangesPrivate : public QSharedData
{
public:
    PimPhoneBookChangesPrivate() = default;
    explicit PimPhoneBookChangesPrivate( const BookPairing& a_pairing ) :
        m_newOf( a_pairing.NewOf() ),
        m_oldOf( a_pairing.OldOf() )
    {
        QVector<int> olds;
        for ( int i = 0; i < m_oldOf.size(); ++i )
        {
            if ( m_oldOf.at( i ) < 0 )
                continue;
            m_pairs.append( a_pairing.PairOf( i ) );
            olds.append( m_oldOf.at( i ) );
            if ( IsChanged( a_pairing, m_pairs.constLast() ) )
                m_changed.append( m_pairs.constLast() );
        }
        for ( const int move : FewestMoves( olds ) )
            m_moved.append( m_pairs.at( move ) );
    }

    QVector<int> m_newOf;
    QVector<int> m_oldOf;
    QVector<PimPhoneBookPair> m_pairs;
    QVector<PimPhoneBookPair> m_changed;
    QVector<PimPhoneBookPair> m_moved;
};

PimPhoneBookChanges::PimPhoneBookChanges() :
    d( new PimPhoneBookChangesPrivate )
{
}

PimPhoneBookChanges::PimPhoneBookChanges( const PimPhoneBookChanges& a_other ) = default;
PimPhoneBookChanges::PimPhoneBookChanges( PimPhoneBookChanges&& a_other ) noexcept = default;
PimPhoneBookChanges& PimPhoneBookChanges::operator=( const PimPhoneBookChanges& a_other ) = default;
PimPhoneBookChanges& PimPhoneBookChanges::operator=( PimPhoneBookChanges&& a_other ) noexcept = default;
PimPhoneBookChanges::~PimPhoneBookChanges() = default;

PimPhoneBookChanges PimPhoneBookChanges::Compare( const PimContactBook& a_old, const PimContactBook& a_new,
                                                  const PimPhoneBookOptions& a_options )
{
    BookPairing pairing( a_old, a_new );
    PairContacts( pairing, a_options );
    PimPhoneBookChanges changes;
    changes.d = new PimPhoneBookChangesPrivate( pairing );
    return changes;
}

PimPhoneBookLines PimPhoneBookChanges::LinesOf( const PimContact& a_old, const PimContact& a_new )
{
    return DifferentLines( a_old.Card(), a_new.Card() );
}

bool PimPhoneBookChanges::IsEmpty() const
{
    return d->m_changed.isEmpty() && d->m_pairs.size() == d->m_newOf.size() && d->m_pairs.size() == d->m_oldOf.size();
}

QVector<int> PimPhoneBookChanges::Added() const
{
    return WithoutPartner( d->m_oldOf );
}

QVector<int> PimPhoneBookChanges::Removed() const
{
    return WithoutPartner( d->m_newOf );
}

QVector<PimPhoneBookPair> PimPhoneBookChanges::Changed() const
{
    return d->m_changed;
}

QVector<PimPhoneBookPair> PimPhoneBookChanges::Moved() const
{
    return d->m_moved;
}

QVector<PimPhoneBookPair> PimPhoneBookChanges::Pairs() const
{
    return d->m_pairs;
}

int PimPhoneBookChanges::NewOf( int a_old ) const
{
    return d->m_newOf.value( a_old, -1 );
}

int PimPhoneBookChanges::OldOf( int a_new ) const
{
    return d->m_oldOf.value( a_new, -1 );
}

} // namespace PimManager::PhoneBook
