#include "Loader/LoaderJob.h"

#include <QCoreApplication>
#include <QEvent>

#include <memory>
#include <utility>

namespace PimManager::PhoneBook
{

LoaderJob::LoaderJob( const LoaderTask& a_task, QObject& a_receiver ) :
    m_task( a_task ),
    m_receiver( &a_receiver ),
    m_receivers( a_task.m_former )
{
}

void LoaderJob::Cancel()
{
    m_isCancelled = true;
    const std::lock_guard lock( m_mutex );
    m_receiver = nullptr;
}

void LoaderJob::TellSize( qint64 a_bytes )
{
    Tell( [&] { m_news.m_bytesInAll = a_bytes; } );
}

void LoaderJob::TellRead( qint64 a_bytes )
{
    Tell( [&] { m_news.m_bytesRead += a_bytes; } );
}

void LoaderJob::TellBook( const LoaderBook& a_book )
{
    Tell( [&] { SetBook( a_book ); } );
}

void LoaderJob::TellEnd( const LoaderEnd& a_end, const std::optional<LoaderBook>& a_book )
{
    Tell(
        [&]
        {
            m_news.m_end = a_end;
            if ( a_book )
                SetBook( *a_book );
        } );
}

LoaderNews LoaderJob::TakeNews()
{
    const std::lock_guard lock( m_mutex );
    m_isEventSent = false;
    LoaderNews news = m_news;
    if ( news.m_book )
        m_receivers = news.m_book->m_phoneBook;
    m_news.m_book.reset();
    m_news.m_end.reset();
    return news;
}

void LoaderJob::SetDone()
{
    const std::lock_guard lock( m_mutex );
    m_isDone = true;
    m_changed.notify_all();
}

bool LoaderJob::WaitForEnd( std::chrono::milliseconds a_mostOfDevice )
{
    std::unique_lock lock( m_mutex );
    m_changed.wait_for( lock, a_mostOfDevice, [this] { return IsDone(); } );
    m_changed.wait( lock, [this] { return IsDone() || m_isInDevice; } );
    m_isAbandoned = !IsDone();
    return IsDone();
}

LoaderJob::DeviceCall::DeviceCall( LoaderJob& a_job ) :
    m_job( a_job )
{
    const std::lock_guard lock( m_job.m_mutex );
    m_job.m_isInDevice = true;
    m_job.m_changed.notify_all();
}

LoaderJob::DeviceCall::~DeviceCall()
{
    std::unique_lock lock( m_job.m_mutex );
    m_job.m_isInDevice = false;
    m_job.m_changed.wait( lock, [this] { return !m_job.m_isAbandoned; } );
}

// The receiver may not have taken all former phone books.
void LoaderJob::SetBook( const LoaderBook& a_book )
{
    m_news.m_book = a_book;
    if ( !a_book.m_step )
        m_news.m_book->m_step = StepOfGrowth( m_receivers );
}

// The receiver exists as long as the mutex is locked, because its thread locks it before it deletes the receiver.
template <class Change>
void LoaderJob::Tell( const Change& a_change )
{
    auto event = std::make_unique<QEvent>( QEvent::User );
    const std::lock_guard lock( m_mutex );
    a_change();
    if ( m_receiver != nullptr && !std::exchange( m_isEventSent, true ) )
        QCoreApplication::postEvent( m_receiver, event.release() );
}

} // namespace PimManager::PhoneBook
