#include "Loader/LoaderThreads.h"

#include "Loader/LoaderJob.h"
#include "Loader/LoaderWork.h"

#include <QThread>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

class LoaderThread : public QThread
{
public:
    explicit LoaderThread( const std::shared_ptr<LoaderJob>& a_job ) :
        m_job( a_job )
    {
    }

    ~LoaderThread() override
    {
        m_job->Cancel();
        wait();
    }

    bool IsDone() const { return m_isDone; }

private:
    void run() override
    {
        LoaderWork( *m_job ).Run();
        m_isDone = true;
    }

    const std::shared_ptr<LoaderJob> m_job;
    std::atomic<bool> m_isDone = false;
};

/// The threads that have not been waited for yet.
class LoaderThreads
{
public:
    void Start( const std::shared_ptr<LoaderJob>& a_job )
    {
        auto thread = std::make_unique<LoaderThread>( a_job );
        const std::lock_guard lock( m_mutex );
        m_threads.erase(
            std::remove_if( m_threads.begin(), m_threads.end(), []( const auto& a_each ) { return a_each->IsDone(); } ),
            m_threads.end() );
        m_threads.push_back( std::move( thread ) );
        m_threads.back()->start();
    }

private:
    std::mutex m_mutex;
    std::vector<std::unique_ptr<LoaderThread>> m_threads;
};

} // namespace

void StartLoaderThread( const std::shared_ptr<LoaderJob>& a_job )
{
    static LoaderThreads threads;
    threads.Start( a_job );
}

} // namespace PimManager::PhoneBook
