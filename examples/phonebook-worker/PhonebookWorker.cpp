#include "PhonebookWorker.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactReader.h>

#include <QFile>
#include <QSemaphore>
#include <QThread>

using namespace PimManager::Contacts;

namespace
{

// Small enough that progress is shown and a cancel is noticed soon, and large enough that passing a batch costs little.
// A piece may contain many cards, so contacts are counted as well.
constexpr int s_kPieceBytes = 16 * 1024;
constexpr int s_kContacts = 50;
// The longest time that a cancel can remain unnoticed while the worker waits.
constexpr int s_kWaitMilliseconds = 20;

Number NumberOf( const PimContactPhone& a_phone )
{
    return { a_phone.Text(), a_phone.Label(), a_phone.Kinds().testFlag( PimContactPhoneKind::Mobile ) };
}

Contact ContactOf( const PimContact& a_contact )
{
    const PimContactList<PimContactPhone> phones = a_contact.Phones();
    Contact contact = { a_contact.DisplayName(), NumberOf( phones.Preferred() ), {} };
    contact.m_numbers.reserve( phones.size() );
    for ( const PimContactPhone& phone : phones )
        contact.m_numbers.append( NumberOf( phone ) );
    return contact;
}

bool IsCancelled()
{
    return QThread::currentThread()->isInterruptionRequested();
}

// The properties that a list of numbers needs: names, numbers and their labels. Photos are never kept in memory.
PimContactOptions ListOptions()
{
    PimContactOptions options;
    options.SetNames( { "N", "FN", "NICKNAME", "ORG", "EMAIL", "TEL", "X-ABLABEL" } );
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
    PimContactReader reader( ListOptions() );
    reader.SetCardHandler( [this]( const PimContactCard& a_card ) { return TakeCard( a_card ); } );
    ReadPieces( file, reader );
    reader.Finish();
    HandOver();
    if ( file.error() != QFileDevice::NoError )
        emit Failed( file.errorString() );
    else
        emit Finished( reader.Report().CardsRefused(), IsCancelled() );
}

bool PhonebookWorker::TakeCard( const PimContactCard& a_card )
{
    if ( IsCancelled() )
        return false;
    m_contacts.append( ContactOf( PimContact( a_card ) ) );
    if ( m_contacts.size() >= s_kContacts )
        HandOver();
    return true;
}

void PhonebookWorker::ReadPieces( QIODevice& a_file, PimContactReader& a_reader )
{
    const qint64 size = qMax( a_file.size(), qint64( 1 ) );
    int percent = 0;
    for ( QByteArray piece = a_file.read( s_kPieceBytes ); !piece.isEmpty(); piece = a_file.read( s_kPieceBytes ) )
    {
        if ( IsCancelled() || !a_reader.Feed( piece ) )
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
