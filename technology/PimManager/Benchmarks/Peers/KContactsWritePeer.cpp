// pimvcard-peer-kcontacts-to-3.0: KContacts, all cards, and all of them written as 3.0.

#include "PeerRun.h"

#include <KContacts/Addressee>
#include <KContacts/VCardConverter>

#include <QByteArray>

using KContacts::VCardConverter;

int main( int argc, char* argv[] )
{
    return PimManager::Peers::Run<QByteArray>(
        argc, argv,
        []( const QByteArray& a_text )
        {
            const VCardConverter converter;
            return converter.createVCards( converter.parseVCards( a_text ), VCardConverter::v3_0 );
        },
        []( const QByteArray& a_text ) { return a_text.count( "\nFN" ); } );
}
