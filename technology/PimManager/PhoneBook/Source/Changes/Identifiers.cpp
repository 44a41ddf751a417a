#include "Changes/Identifiers.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContact;
using Contacts::PimContactCard;
using Contacts::PimContactLine;

namespace
{

const QLatin1String s_kUid( "UID" );
const QLatin1String s_kBluetoothUid( "X-BT-UID" );

QString KeyOf( const QString& a_text )
{
    const QLatin1String prefix( "urn:uuid:" );
    const QString key = a_text.trimmed().toLower();
    return key.startsWith( prefix ) ? key.mid( prefix.size() ) : key;
}

bool Has( const PimContactCard& a_card, QLatin1String a_name )
{
    return std::any_of( a_card.begin(), a_card.end(),
                        [a_name]( const PimContactLine& a_line ) { return a_line.IsNamed( a_name ); } );
}

// A search for a line begins at the first one, so only so many are removed: no contact has more of them.
constexpr int s_kMostBluetoothUids = 16;

void RemoveBluetoothUids( PimContact& a_contact, const PimContactCard& a_card )
{
    const QList<int> ids = PimContact( a_card ).LineIds();
    int place = 0;
    int removed = 0;
    for ( const PimContactLine& line : a_card )
    {
        if ( removed < s_kMostBluetoothUids && line.IsNamed( s_kBluetoothUid ) )
            removed += a_contact.RemoveLine( ids.at( place ) ) ? 1 : 0;
        ++place;
    }
}

} // namespace

const QList<QLatin1String>& IdentifierNames()
{
    static const QList<QLatin1String> s_names = { s_kUid, s_kBluetoothUid };
    return s_names;
}

Identifiers IdentifiersOf( const PimContactCard& a_card )
{
    Identifiers identifiers;
    const QList<QLatin1String>& names = IdentifierNames();
    for ( const PimContactLine& line : a_card )
    {
        for ( size_t i = 0; i < s_kIdentifiers; ++i )
        {
            if ( line.IsNamed( names.at( static_cast<int>( i ) ) ) && identifiers.at( i ).isEmpty() )
                identifiers.at( i ) = KeyOf( line.Text() );
        }
    }
    return identifiers;
}

QList<QLatin1String> IgnoredIdentifiers( const Identifiers& a_first, const Identifiers& a_second )
{
    QList<QLatin1String> ignored;
    for ( size_t i = 0; i < s_kIdentifiers; ++i )
    {
        if ( a_first.at( i ).isEmpty() || a_second.at( i ).isEmpty() )
            ignored.append( IdentifierNames().at( static_cast<int>( i ) ) );
    }
    return ignored;
}

PimContact ContactWithout( const PimContactCard& a_card, const QList<QLatin1String>& a_identifiers )
{
    PimContact contact( a_card );
    if ( a_identifiers.contains( s_kUid ) && Has( a_card, s_kUid ) )
        contact.SetUid( QString() );
    if ( a_identifiers.contains( s_kBluetoothUid ) )
        RemoveBluetoothUids( contact, a_card );
    return contact;
}

bool AreEqualWithout( const PimContactCard& a_first, const PimContactCard& a_second,
                      const QList<QLatin1String>& a_identifiers )
{
    return a_first.HasSameLines( a_second, a_identifiers ) ||
           ContactWithout( a_first, a_identifiers ) == ContactWithout( a_second, a_identifiers );
}

} // namespace PimManager::PhoneBook
