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
    const auto found = phoneBook.Find( QStringLiteral( "Name10001" ) ).size();
    const auto sections = phoneBook.Section( 0 );
    std::atomic<int> right = 0;
    const auto read = [&]
    {
        const bool isRight = phoneBook.Find( QStringLiteral( "Name10001" ) ).size() == found &&
                             phoneBook.FindByKeys( QStringLiteral( "500012" ) ).size() == 1 &&
                             phoneBook.WhoIs( QStringLiteral( "+49 30 500007" ) ).size() == 1 &&
                             phoneBook.Section( 0 ) == sections && phoneBook.Sorted().size() == 50;
        right += isRight ? 1 : 0;
    };
    std::vector<std::thread> threads;
    for ( int i = 0; i < s_kThreads; ++i )
        threads.emplace_back( read );
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
