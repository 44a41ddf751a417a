// A phone book in several threads, and loaders that are stopped at any time.

#include "../Model/ModelBooks.h"
#include "../Model/ShadowList.h"
#include "TestDevices.h"

#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <gtest/gtest.h>

#include "LoaderEvents.h"

#include <atomic>
#include <random>
#include <thread>

namespace PimManager::PhoneBook
{

namespace
{

using PimPhoneBookThreadsTest = LoaderTest;

constexpr int s_kThreads = 4;

} // namespace

TEST_F( PimPhoneBookThreadsTest, PhoneBookIsReadByFourThreadsAtOnce )
{
    const PimPhoneBook phoneBook = PhoneBookOf( ManyContacts( 50 ) );
    const auto read = [&]
    {
        std::vector<int> found;
        for ( const PimPhoneBookMatch& match : phoneBook.Find( QStringLiteral( "Name10001" ) ) )
            found.push_back( match.m_contact );
        for ( const PimPhoneBookMatch& match : phoneBook.FindByKeys( QStringLiteral( "500012" ) ) )
            found.push_back( match.m_contact );
        for ( const PimPhoneBookCaller& caller : phoneBook.WhoIs( QStringLiteral( "+49 30 500007" ) ) )
            found.push_back( caller.m_contact );
        found.push_back( static_cast<int>( phoneBook.Section( phoneBook.Sorted().last() ).size() ) );
        return found;
    };
    const std::vector<int> alone = read();
    EXPECT_GE( alone.size(), 13U );
    std::atomic<int> right = 0;
    std::vector<std::thread> threads;
    for ( int i = 0; i < s_kThreads; ++i )
        threads.emplace_back( [&] { right += read() == alone ? 1 : 0; } );
    for ( std::thread& thread : threads )
        thread.join();
    EXPECT_EQ( right, s_kThreads );
}

TEST_F( PimPhoneBookThreadsTest, LoaderFillsModelThatIsSearchedMeanwhile )
{
    const std::vector<TestContact> contacts = ManyContacts( 1000 );
    PimPhoneBookModel model;
    const ShadowList view( model );
    PimPhoneBookLoader loader;
    loader.SetModel( &model );
    LoaderEvents events( loader );
    for ( int round = 0; round < 3; ++round )
    {
        loader.LoadDevice( [text = TextOf( contacts )]
                           { return std::make_unique<TestDevice>( text, TestEnd::Finishes ); } );
        int keys = 0;
        while ( loader.IsLoading() )
        {
            model.SetFilter( ++keys % 2 == 0 ? QString() : QStringLiteral( "Name1001" ) );
            QCoreApplication::processEvents( QEventLoop::AllEvents, 1 );
        }
    }
    model.SetFilter( QString() );
    EXPECT_EQ( events.m_loaded.size(), 3U );
    EXPECT_EQ( model.Count(), 1000 );
    EXPECT_EQ( view.Shown(), view.Expected() );
}

TEST_F( PimPhoneBookThreadsTest, LoadersAreStoppedAndDeletedAtAnyTime )
{
    const QByteArray text = TextOf( ManyContacts( 2000 ) );
    std::mt19937 random( 1 );
    PimPhoneBookModel model;
    const ShadowList view( model );
    for ( int round = 0; round < 60; ++round )
    {
        auto loader = std::make_unique<PimPhoneBookLoader>();
        loader->SetModel( &model );
        loader->LoadBytes( text );
        const QDeadlineTimer deadline( static_cast<qint64>( random() % 20 ) );
        while ( !deadline.hasExpired() )
            QCoreApplication::processEvents( QEventLoop::AllEvents, 1 );
        const auto kind = random() % 3;
        if ( kind == 0 )
            loader->Stop();
        if ( kind == 1 )
            loader->LoadBytes( text );
        loader.reset();
        if ( round % 8 == 0 )
            model.SetPhoneBook( PimPhoneBook() );
        ASSERT_EQ( view.Shown(), view.Expected() );
    }
    EXPECT_EQ( view.Resets(), 0 );
}

TEST_F( PimPhoneBookThreadsTest, SeveralLoadersWorkAtOnce )
{
    const QByteArray text = TextOf( ManyContacts( 500 ) );
    std::vector<std::unique_ptr<PimPhoneBookLoader>> loaders;
    for ( int i = 0; i < s_kThreads; ++i )
    {
        loaders.push_back( std::make_unique<PimPhoneBookLoader>() );
        loaders.back()->LoadBytes( text );
    }
    for ( const auto& loader : loaders )
    {
        ASSERT_TRUE( WaitFor( [&] { return !loader->IsLoading(); } ) );
        EXPECT_EQ( loader->PhoneBook().Size(), 500 );
    }
}

} // namespace PimManager::PhoneBook
