#include "PhonebookWorker.h"

#include <PimVCardDecoding.h>

#include <QFile>
#include <QSemaphore>
#include <QThread>

using namespace PimManager::vCard;
using namespace PimManager::vCardImport;

namespace
{

// Small enough that progress is seen and a cancel is heard soon, large enough that handing over costs little. Cards
// come out of import many at a time, so contacts are counted apart from pieces.
constexpr int s_kPieceBytes = 16 * 1024;
constexpr int s_kContacts = 50;
// How long a cancel can stay unseen while the worker waits.
constexpr int s_kWaitMilliseconds = 20;

Contact ContactOf( const PimVCard& a_card )
{
    Contact contact;
    contact.m_name = DisplayNameOf( a_card );
    for ( const PimVCardProperty* property : a_card.GetProperties() )
        if ( IsNamed( *property, "TEL" ) )
            contact.m_numbers.append( TelephoneNumberOf( *property ) );
    return contact;
}

bool IsCancelled()
{
    return QThread::currentThread()->isInterruptionRequested();
}

PimVCardImportOptions ListOptions()
{
    PimVCardImportOptions options;
    options.m_filter.m_names =
        QStringList{ QStringLiteral( "N" ),   QStringLiteral( "FN" ),    QStringLiteral( "NICKNAME" ),
                     QStringLiteral( "ORG" ), QStringLiteral( "EMAIL" ), QStringLiteral( "TEL" ) };
    return options;
}

} // namespace

PhonebookWorker::PhonebookWorker( const QString& a_fileName, QSemaphore& a_places ) :
    m_fileName( a_fileName ),
    m_places( a_places )
{
}

void PhonebookWorker::Run()
{
    QFile file( m_fileName );
    if ( !file.open( QIODevice::ReadOnly ) )
    {
        emit Failed( file.errorString() );
        return;
    }
    PimVCardImporter importer( ListOptions() );
    importer.SetCardHandler( [this]( PimVCardImportedCard a_card ) { return TakeCard( *a_card.m_card ); } );
    ReadPieces( file, importer );
    const PimVCardImportAccount account = importer.Finish();
    HandOver();
    if ( file.error() != QFileDevice::NoError )
        emit Failed( file.errorString() );
    else
        emit Finished( account.m_cardsRefused, IsCancelled() );
}

bool PhonebookWorker::TakeCard( const PimVCard& a_card )
{
    if ( IsCancelled() )
        return false;
    m_contacts.append( ContactOf( a_card ) );
    if ( m_contacts.size() >= s_kContacts )
        HandOver();
    return true;
}

void PhonebookWorker::ReadPieces( QIODevice& a_file, PimVCardImporter& a_importer )
{
    const qint64 size = qMax( a_file.size(), qint64( 1 ) );
    int percent = 0;
    for ( QByteArray piece = a_file.read( s_kPieceBytes ); !piece.isEmpty(); piece = a_file.read( s_kPieceBytes ) )
    {
        if ( IsCancelled() || !a_importer.Feed( piece ) )
            return;
        HandOver();
        percent = qMax( percent, static_cast<int>( qMin( a_file.pos() * 100 / size, qint64( 100 ) ) ) );
        emit Progress( percent );
    }
}

void PhonebookWorker::HandOver()
{
    if ( m_contacts.isEmpty() || !WaitForPlace() )
        return;
    emit ContactsRead( m_contacts );
    m_contacts.clear();
}

bool PhonebookWorker::WaitForPlace()
{
    while ( !IsCancelled() )
        if ( m_places.tryAcquire( 1, s_kWaitMilliseconds ) )
            return true;
    return false;
}
