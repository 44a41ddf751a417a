#include "Loader/LoaderJob.h"

#include "../Model/ModelBooks.h"

#include <gtest/gtest.h>

#include <QObject>

#include <atomic>
#include <future>
#include <thread>

namespace PimManager::PhoneBook
{

namespace
{

constexpr std::chrono::milliseconds s_kShort( 20 );

} // namespace

TEST( LoaderJobTest, NewsAreTakenOnceAndProgressAdds )
{
    QObject receiver;
    LoaderJob job( LoaderTask(), receiver );
    EXPECT_EQ( job.TakeNews().m_bytesInAll, -1 );
    job.TellSize( 100 );
    job.TellRead( 10 );
    job.TellRead( 20 );
    job.TellEnd( { Contacts::PimContactReport(), QStringLiteral( "error" ) }, std::nullopt );
    const LoaderNews news = job.TakeNews();
    EXPECT_EQ( news.m_bytesInAll, 100 );
    EXPECT_EQ( news.m_bytesRead, 30 );
    ASSERT_TRUE( news.m_end );
    EXPECT_EQ( news.m_end->m_errorText, QStringLiteral( "error" ) );
    EXPECT_FALSE( news.m_book );
    EXPECT_FALSE( job.TakeNews().m_end );
    EXPECT_EQ( job.TakeNews().m_bytesRead, 30 );
}

TEST( LoaderJobTest, StepOfGrowthBeginsAtThePhoneBookOfTheReceiver )
{
    QObject receiver;
    LoaderJob job( LoaderTask(), receiver );
    const PimPhoneBook two = PhoneBookOf( ManyContacts( 2 ) );
    job.TellBook( { two, std::nullopt } );
    EXPECT_EQ( job.TakeNews().m_book->m_step->m_newOf.size(), 0 );
    job.TellBook( { PhoneBookOf( ManyContacts( 4 ) ), std::nullopt } );
    job.TellBook( { PhoneBookOf( ManyContacts( 8 ) ), std::nullopt } );
    const LoaderNews news = job.TakeNews();
    EXPECT_EQ( news.m_book->m_phoneBook.Size(), 8 );
    EXPECT_TRUE( IsSameBook( news.m_book->m_step->m_from, two ) );
    EXPECT_EQ( news.m_book->m_step->m_newOf, ( QVector<int>{ 0, 1 } ) );
}

TEST( LoaderJobTest, ThreadThatIsDoneIsWaitedFor )
{
    QObject receiver;
    LoaderJob job( LoaderTask(), receiver );
    std::thread thread( [&] { job.SetDone(); } );
    EXPECT_TRUE( job.WaitForEnd( s_kShort ) );
    EXPECT_TRUE( job.IsDone() );
    thread.join();
}

TEST( LoaderJobTest, ThreadThatWorksIsWaitedForAndNotAbandoned )
{
    QObject receiver;
    LoaderJob job( LoaderTask(), receiver );
    std::atomic<bool> isReady = false;
    std::thread thread(
        [&]
        {
            EXPECT_EQ( job.InDevice( [] { return 5; } ), 5 );
            while ( !isReady )
                std::this_thread::yield();
            job.SetDone();
        } );
    auto waiting = std::async( std::launch::async, [&] { return job.WaitForEnd( s_kShort ); } );
    EXPECT_EQ( waiting.wait_for( 5 * s_kShort ), std::future_status::timeout );
    isReady = true;
    EXPECT_TRUE( waiting.get() );
    thread.join();
}

TEST( LoaderJobTest, AbandonedThreadDoesNotReturnFromTheDevice )
{
    QObject receiver;
    const auto job = std::make_shared<LoaderJob>( LoaderTask(), receiver );
    const auto hasReturned = std::make_shared<std::atomic<bool>>( false );
    const auto mayReturn = std::make_shared<std::promise<void>>();
    std::thread thread(
        [=]
        {
            job->InDevice( [&] { mayReturn->get_future().wait(); } );
            *hasReturned = true;
        } );
    EXPECT_FALSE( job->WaitForEnd( s_kShort ) );
    mayReturn->set_value();
    std::this_thread::sleep_for( 5 * s_kShort );
    EXPECT_FALSE( *hasReturned );
    thread.detach();
}

} // namespace PimManager::PhoneBook
