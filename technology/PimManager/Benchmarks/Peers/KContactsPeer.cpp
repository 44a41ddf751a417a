// pimvcard-peer-kcontacts: KContacts. Values are decoded and sorted into the fields of a person.

#include "PeerRun.h"

#include <KContacts/Addressee>
#include <KContacts/VCardConverter>

#include <QByteArray>

#include <algorithm>

using KContacts::Addressee;

int main( int argc, char* argv[] )
{
    return PimManager::Peers::Run<QByteArray>(
        argc, argv, []( const QByteArray& a_text ) { return KContacts::VCardConverter().parseVCards( a_text ); },
        []( const Addressee::List& a_people )
        {
            return static_cast<int>( std::count_if( a_people.begin(), a_people.end(),
                                                    []( const Addressee& a_person )
                                                    { return !a_person.formattedName().isEmpty(); } ) );
        } );
}
