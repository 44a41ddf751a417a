#include "Loader/LoaderThreads.h"

#include "Loader/LoaderJob.h"
#include "Loader/LoaderWork.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

constexpr std::chrono::seconds s_kMostWait( 3 );

/// One thread. Not a QThread, whose end the thread sanitizer does not see.
class LoaderThread
{
public:
    explicit LoaderThread( const std::shared_ptr<LoaderJob>& a_job ) :
        m_job( a_job ),
        m_thread( [a_job] { Do( *a_job ); } )
    {
    }

    /// Cancels the job, and waits.
    ~LoaderThread();
    Q_DISABLE_COPY( LoaderThread )

    bool IsDone() const { return m_job->IsDone(); }

private:
    static void Do( LoaderJob& a_job );

    const std::shared_ptr<LoaderJob> m_job;
    std::thread m_thread;
};

// A device may not answer for a long time, and a program must be able to end.
LoaderThread::~LoaderThread()
{
    m_job->Cancel();
    if ( m_job->WaitForEnd( s_kMostWait ) )
        m_thread.join();
    else
        m_thread.detach();
}

void LoaderThread::Do( LoaderJob& a_job )
{
    LoaderWork( a_job ).Run();
    a_job.SetDone();
}

/// The threads that have not been waited for yet.
class LoaderThreads
{
public:
    static LoaderThreads& Instance()
    {
        static LoaderThreads threads;
        return threads;
    }

    void Start( const std::shared_ptr<LoaderJob>& a_job )
    {
        const std::lock_guard lock( m_mutex );
        // Later, when static objects are being destroyed, a thread may still need one.
        qRemovePostRoutine( &WaitForAll );
        qAddPostRoutine( &WaitForAll );
        m_threads.erase(
            std::remove_if( m_threads.begin(), m_threads.end(), []( const auto& a_each ) { return a_each->IsDone(); } ),
            m_threads.end() );
        m_threads.push_back( std::make_unique<LoaderThread>( a_job ) );
    }

private:
    static void WaitForAll()
    {
        LoaderThreads& threads = Instance();
        const std::lock_guard lock( threads.m_mutex );
        threads.m_threads.clear();
    }

    std::mutex m_mutex;
    std::vector<std::unique_ptr<LoaderThread>> m_threads;
};

} // namespace

void StartLoaderThread( const std::shared_ptr<LoaderJob>& a_job )
{
    try
    {
        LoaderThreads::Instance().Start( a_job );
    }
    catch ( const std::system_error& error )
    {
        a_job->TellEnd( { Contacts::PimContactReport(), QString::fromLocal8Bit( error.what() ) }, std::nullopt );
    }
}

} // namespace PimManager::PhoneBook
