#include "Phonebook.h"

#include "PhonebookWorker.h"

namespace
{

// The number of batches of contacts by which the worker may be ahead.
constexpr int s_kPlaces = 4;

} // namespace

Phonebook::Phonebook( const QString& a_fileName ) :
    m_fileName( a_fileName ),
    m_places( s_kPlaces )
{
    qRegisterMetaType<Contacts>();
}

Phonebook::~Phonebook()
{
    Cancel();
    m_thread.quit();
    m_thread.wait();
}

void Phonebook::Open()
{
    auto* worker = new PhonebookWorker( m_fileName, m_places );
    worker->moveToThread( &m_thread );
    connect( &m_thread, &QThread::started, worker, &PhonebookWorker::Run );
    connect( &m_thread, &QThread::finished, worker, &QObject::deleteLater );
    connect( worker, &PhonebookWorker::ContactsRead, this, &Phonebook::Add );
    connect( worker, &PhonebookWorker::Progress, this, &Phonebook::Progress );
    connect( worker, &PhonebookWorker::Finished, this, &Phonebook::Finished );
    connect( worker, &PhonebookWorker::Failed, this, &Phonebook::Failed );
    m_thread.start( QThread::LowPriority );
}

void Phonebook::Cancel()
{
    m_thread.requestInterruption();
}

void Phonebook::Add( const Contacts& a_contacts )
{
    const auto first = static_cast<int>( m_contacts.size() );
    m_contacts += a_contacts;
    m_places.release();
    emit ContactsAdded( first, static_cast<int>( a_contacts.size() ) );
}
