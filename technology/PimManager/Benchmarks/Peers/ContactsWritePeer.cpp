// pimvcard-peer-contacts-to-3.0: Contacts, all cards, and all of them written as 3.0.
// pimvcard-peer-contacts-to-jcard: the same, written as jCard.

#include "PeerRun.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QBuffer>
#include <QByteArray>

using namespace PimManager::Contacts;

namespace
{

#ifdef PIMVCARD_PEER_JCARD
constexpr PimContactFormat s_kFormat = PimContactFormat::JCard;
constexpr const char* s_kName = "[\"fn\",";
#else
constexpr PimContactFormat s_kFormat = PimContactFormat::V30;
constexpr const char* s_kName = "\nFN";
#endif

QByteArray Write( const QByteArray& a_text )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactBook::FromBytes( a_text ).Save( buffer, s_kFormat );
    return buffer.data();
}

} // namespace

int main( int argc, char* argv[] )
{
    return PimManager::Peers::Run<QByteArray>( argc, argv, Write,
                                               []( const QByteArray& a_text ) { return a_text.count( s_kName ); } );
}
