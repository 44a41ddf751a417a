#include "Loader/LoaderThreads.h"

#include "Loader/LoaderJob.h"
#include "Loader/LoaderWork.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

/// One thread. Not a QThread, whose end the thread sanitizer does not see.
class LoaderThread
{
public:
    explicit LoaderThread( const std::shared_ptr<LoaderJob>& a_job ) :
        m_job( a_job ),
        m_thread( [this] { Run(); } )
    {
    }

    ~LoaderThread()
    {
        m_job->Cancel();
        m_thread.join();
    }
    Q_DISABLE_COPY( LoaderThread )

    bool IsDone() const { return m_isDone; }

private:
    void Run()
    {
        LoaderWork( *m_job ).Run();
        m_isDone = true;
    }

    const std::shared_ptr<LoaderJob> m_job;
    std::atomic<bool> m_isDone = false;
    std::thread m_thread;
};

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
