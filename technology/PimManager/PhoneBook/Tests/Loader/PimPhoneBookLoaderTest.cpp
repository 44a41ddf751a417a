#include <PimManager/PhoneBook/PimPhoneBookLoader.h>

#include "../Model/ModelBooks.h"
#include "../Model/ShadowList.h"
#include "LoaderEvents.h"
#include "TestDevices.h"

#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>

namespace PimManager::PhoneBook
{

namespace
{

using PimPhoneBookLoaderTest = LoaderTest;

PimPhoneBookLoader::DeviceMaker Maker( const QByteArray& a_bytes, TestEnd a_end, bool a_isSequential = true )
{
    return [=] { return std::make_unique<TestDevice>( a_bytes, a_end, a_isSequential ); };
}

bool IsBeginningOf( const PimPhoneBook& a_beginning, const PimPhoneBook& a_whole )
{
    if ( a_beginning.Size() > a_whole.Size() )
        return false;
    for ( int contact = 0; contact < a_beginning.Size(); ++contact )
    {
        if ( a_beginning.Book().CardAt( contact ) != a_whole.Book().CardAt( contact ) )
            return false;
    }
    return true;
}

std::vector<TestContact> WithOtherNumber( std::vector<TestContact> a_contacts, size_t a_contact )
{
    a_contacts[a_contact].m_number = "0";
    return a_contacts;
}

} // namespace

TEST_F( PimPhoneBookLoaderTest, NewLoaderHasLoadedNothing )
{
    const PimPhoneBookLoader loader;
    EXPECT_FALSE( loader.IsLoading() );
    EXPECT_EQ( loader.PhoneBook().Size(), 0 );
    EXPECT_EQ( loader.Progress(), 0 );
    EXPECT_EQ( loader.BytesRead(), 0 );
    EXPECT_EQ( loader.BytesInAll(), -1 );
    EXPECT_TRUE( loader.ErrorText().isEmpty() );
}

TEST_F( PimPhoneBookLoaderTest, FileIsLoaded )
{
    const QByteArray text = TextOf( ManyContacts( 100 ) ) + "no card\r\n";
    const QTemporaryDir folder;
    QFile file( folder.filePath( QStringLiteral( "book.vcf" ) ) );
    ASSERT_TRUE( file.open( QIODevice::WriteOnly ) && file.write( text ) == text.size() && file.flush() );
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.Load( file.fileName() );
    EXPECT_TRUE( loader.IsLoading() );
    ASSERT_TRUE( events.WaitForEnd() );
    ASSERT_EQ( events.m_loaded.size(), 1U );
    EXPECT_TRUE( events.m_failed.empty() );
    EXPECT_EQ( events.m_loaded.front().Book(), Contacts::PimContactBook::FromBytes( text ) );
    EXPECT_EQ( loader.PhoneBook().Size(), 100 );
    EXPECT_EQ( loader.Report().CardsWhole(), 100 );
    EXPECT_FALSE( loader.Report().IsComplete() );
    EXPECT_EQ( loader.BytesRead(), text.size() );
    EXPECT_EQ( loader.BytesInAll(), text.size() );
    EXPECT_EQ( loader.Progress(), 1 );
    EXPECT_EQ( events.m_loading, ( std::vector<bool>{ true, false } ) );
    EXPECT_TRUE( std::is_sorted( events.m_progress.begin(), events.m_progress.end() ) );
}

TEST_F( PimPhoneBookLoaderTest, GrownPhoneBooksAreBeginningsOfTheWholeOne )
{
    const QByteArray text = TextOf( ManyContacts( 1000 ) );
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.LoadDevice( Maker( text, TestEnd::Finishes ) );
    ASSERT_TRUE( events.WaitForEnd() );
    ASSERT_EQ( events.m_loaded.size(), 1U );
    EXPECT_EQ( events.m_loaded.front().Book(), Contacts::PimContactBook::FromBytes( text ) );
    int before = 0;
    for ( const PimPhoneBook& grown : events.m_grown )
    {
        SCOPED_TRACE( grown.Size() );
        EXPECT_TRUE( grown.Size() >= 32 && ( grown.Size() & ( grown.Size() - 1 ) ) == 0 );
        EXPECT_GT( grown.Size(), before );
        EXPECT_TRUE( IsBeginningOf( grown, events.m_loaded.front() ) );
        before = grown.Size();
    }
}

TEST_F( PimPhoneBookLoaderTest, FirstContactsAreShownWhileTheDeviceIsSilent )
{
    PimPhoneBookModel model;
    const ShadowList view( model );
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.SetModel( &model );
    loader.LoadDevice( Maker( TextOf( ManyContacts( 40 ) ), TestEnd::IsSilent ) );
    ASSERT_TRUE( WaitFor( [&] { return !events.m_grown.empty(); } ) );
    EXPECT_EQ( model.Count(), 32 );
    EXPECT_EQ( view.Shown(), view.Expected() );
    EXPECT_TRUE( loader.IsLoading() );
}

TEST_F( PimPhoneBookLoaderTest, GrowingPhoneBookOnlyInsertsRows )
{
    PimPhoneBookModel model;
    const ShadowList view( model );
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.SetModel( &model );
    loader.LoadBytes( TextOf( ManyContacts( 3000 ) ) );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( view.RowsTouched(), 3000 );
    EXPECT_EQ( view.Shown(), view.Expected() );
    EXPECT_EQ( view.Resets(), 0 );
    EXPECT_EQ( loader.PhoneBook().Size(), 3000 );
}

TEST_F( PimPhoneBookLoaderTest, SecondLoadingTouchesOnlyWhatChanged )
{
    const std::vector<TestContact> contacts = ManyContacts( 200 );
    PimPhoneBookModel model;
    PimPhoneBookLoader loader;
    loader.SetModel( &model );
    loader.LoadBytes( TextOf( contacts ) );
    ASSERT_TRUE( LoaderEvents( loader ).WaitForEnd() );
    const ShadowList view( model );
    LoaderEvents events( loader );
    loader.LoadBytes( TextOf( contacts ) );
    EXPECT_EQ( loader.Progress(), 0 );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( view.Steps(), 0 );
    loader.LoadBytes( TextOf( WithOtherNumber( contacts, 77 ) ) );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( view.Steps(), 1 );
    EXPECT_EQ( view.Shown(), view.Expected() );
    EXPECT_TRUE( events.m_grown.empty() );
    EXPECT_EQ( events.m_loaded.size(), 2U );
}

TEST_F( PimPhoneBookLoaderTest, ModelThatGotAnotherBookInTheMeantimeIsComparedAgain )
{
    const std::vector<TestContact> contacts = ManyContacts( 100 );
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( contacts ) );
    const ShadowList view( model );
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.SetModel( &model );
    loader.LoadBytes( TextOf( contacts ) );
    model.SetPhoneBook( PhoneBookOf( { { "Anna", "1" } } ) );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( model.Count(), 100 );
    EXPECT_EQ( view.Shown(), view.Expected() );
}

TEST_F( PimPhoneBookLoaderTest, FailureIsToldAndContactsBeforeItAreShown )
{
    struct Row
    {
        const char* m_name;
        PimPhoneBookLoader::DeviceMaker m_maker;
        const char* m_errorText;
        int m_contacts;
    };
    const QByteArray text = TextOf( ManyContacts( 100 ) );
    const std::vector<Row> rows = {
        { "stick pulled out", Maker( text, TestEnd::Fails, false ), "the stick was pulled out", 100 },
        { "connection lost", Maker( text, TestEnd::Fails ), "the stick was pulled out", 100 },
        { "in the first card", Maker( text.left( 20 ), TestEnd::Fails ), "the stick was pulled out", 1 },
        { "no function", PimPhoneBookLoader::DeviceMaker(), "there is no device", 0 },
        { "no device", [] { return nullptr; }, "there is no device", 0 },
        { "closed device", [] { return std::make_unique<QBuffer>(); }, "Unknown error", 0 },
        { "exception", Maker( text, TestEnd::Throws ), "thrown by the device", 99 },
        { "no memory", []() -> std::unique_ptr<QIODevice> { throw std::bad_alloc(); }, "there is not enough memory",
          0 },
        { "another exception", []() -> std::unique_ptr<QIODevice> { throw 1; }, "the device threw an exception", 0 },
    };
    for ( const Row& row : rows )
    {
        SCOPED_TRACE( row.m_name );
        PimPhoneBookModel model;
        PimPhoneBookLoader loader;
        LoaderEvents events( loader );
        loader.SetModel( &model );
        loader.LoadDevice( row.m_maker );
        ASSERT_TRUE( events.WaitForEnd() );
        EXPECT_EQ( events.m_failed, std::vector<std::string>{ row.m_errorText } );
        EXPECT_EQ( loader.ErrorText().toStdString(), row.m_errorText );
        EXPECT_TRUE( events.m_loaded.empty() );
        EXPECT_GE( model.Count(), row.m_contacts );
        EXPECT_LT( loader.Progress(), 1.0 + ( row.m_contacts > 0 ? 1 : 0 ) );
    }
}

TEST_F( PimPhoneBookLoaderTest, MissingFileFails )
{
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.Load( QStringLiteral( "/no/such/file.vcf" ) );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( events.m_failed, std::vector<std::string>{ "No such file or directory" } );
}

TEST_F( PimPhoneBookLoaderTest, FailureOfSecondLoadingKeepsThePhoneBook )
{
    const std::vector<TestContact> contacts = ManyContacts( 100 );
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( contacts ) );
    const ShadowList view( model );
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.SetModel( &model );
    loader.LoadDevice( Maker( TextOf( ManyContacts( 50 ) ), TestEnd::Fails ) );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( view.Steps(), 0 );
    EXPECT_EQ( model.Count(), 100 );
    EXPECT_EQ( events.m_failed.size(), 1U );
    EXPECT_TRUE( events.m_grown.empty() );
    loader.LoadBytes( TextOf( contacts ) );
    EXPECT_TRUE( loader.ErrorText().isEmpty() );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( events.m_loaded.size(), 1U );
}

TEST_F( PimPhoneBookLoaderTest, FileWithoutContactsIsLoaded )
{
    const std::vector<std::pair<QByteArray, Contacts::PimContactFileKind>> rows = {
        { "", Contacts::PimContactFileKind::Empty },
        { "hello\n", Contacts::PimContactFileKind::Text },
        { "%PDF-1.4\n" + QByteArray( 300000, 'x' ), Contacts::PimContactFileKind::Document } };
    for ( const auto& [text, kind] : rows )
    {
        SCOPED_TRACE( text.left( 10 ).toStdString() );
        PimPhoneBookLoader loader;
        LoaderEvents events( loader );
        loader.LoadBytes( text );
        ASSERT_TRUE( events.WaitForEnd() );
        ASSERT_EQ( events.m_loaded.size(), 1U );
        EXPECT_EQ( events.m_loaded.front().Size(), 0 );
        EXPECT_EQ( loader.Report().FileKind(), kind );
        EXPECT_EQ( loader.Progress(), 1 );
    }
}

TEST_F( PimPhoneBookLoaderTest, OptionsAreThoseOfTheStart )
{
    Contacts::PimContactOptions reading;
    reading.SetCards( 10 );
    PimPhoneBookOptions options;
    options.SetRegion( QStringLiteral( "DE" ) );
    PimPhoneBookLoader loader;
    loader.SetReadingOptions( reading );
    loader.SetOptions( options );
    LoaderEvents events( loader );
    loader.LoadBytes( TextOf( ManyContacts( 50 ) ) );
    loader.SetReadingOptions( Contacts::PimContactOptions() );
    loader.SetOptions( PimPhoneBookOptions() );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( loader.PhoneBook().Size(), 10 );
    EXPECT_EQ( loader.PhoneBook().Options().Region(), QStringLiteral( "DE" ) );
    EXPECT_EQ( loader.Report().CardsRefused(), 40 );
}

TEST_F( PimPhoneBookLoaderTest, StoppedLoadingTellsNothingMore )
{
    const std::vector<std::pair<const char*, TestEnd>> rows = { { "silent", TestEnd::IsSilent },
                                                                { "endless", TestEnd::IsEndless } };
    for ( const auto& [name, end] : rows )
    {
        SCOPED_TRACE( name );
        PimPhoneBookModel model;
        PimPhoneBookLoader loader;
        loader.SetModel( &model );
        LoaderEvents events( loader );
        loader.LoadDevice( Maker( TextOf( ManyContacts( 40 ) ), end ) );
        ASSERT_TRUE( WaitFor( [&] { return !events.m_grown.empty(); } ) );
        loader.Stop();
        EXPECT_FALSE( loader.IsLoading() );
        EXPECT_EQ( events.m_loading, ( std::vector<bool>{ true, false } ) );
        const size_t grown = events.m_grown.size();
        const int rowsBefore = model.Count();
        QCoreApplication::processEvents();
        EXPECT_EQ( events.m_grown.size(), grown );
        EXPECT_EQ( model.Count(), rowsBefore );
        EXPECT_TRUE( events.m_loaded.empty() );
        loader.Stop();
        EXPECT_EQ( events.m_loading.size(), 2U );
    }
}

TEST_F( PimPhoneBookLoaderTest, SecondStartStopsTheFirst )
{
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.LoadDevice( Maker( TextOf( ManyContacts( 40 ) ), TestEnd::IsEndless ) );
    loader.LoadBytes( TextOf( { { "Anna", "1" } } ) );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( events.m_loading, ( std::vector<bool>{ true, false } ) );
    ASSERT_EQ( events.m_loaded.size(), 1U );
    EXPECT_EQ( events.m_loaded.front().Size(), 1 );
}

TEST_F( PimPhoneBookLoaderTest, SlotMayStartAgain )
{
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    QObject context;
    QObject::connect( &loader, &PimPhoneBookLoader::Loaded, &context,
                      [&]
                      {
                          if ( events.m_loaded.size() < 3 )
                              loader.LoadBytes( TextOf( { { "Anna", "1" } } ) );
                      } );
    loader.LoadBytes( TextOf( { { "Anna", "1" } } ) );
    ASSERT_TRUE( WaitFor( [&] { return events.m_loaded.size() == 3; } ) );
    EXPECT_FALSE( loader.IsLoading() );
}

TEST_F( PimPhoneBookLoaderTest, SlotMayStopOrDeleteTheLoader )
{
    using Loader = PimPhoneBookLoader;
    using Action = std::function<void( std::unique_ptr<Loader>& )>;
    const std::vector<std::pair<const char*, Action>> actions = {
        { "stop", []( auto& a_loader ) { a_loader->Stop(); } },
        { "delete", []( auto& a_loader ) { a_loader.reset(); } } };
    const std::vector<const char*> names = { "loading", "progress", "grown", "loaded", "failed", "rows" };
    for ( const auto& [action, act] : actions )
    {
        for ( size_t name = 0; name < names.size(); ++name )
        {
            SCOPED_TRACE( std::string( action ) + " when " + names[name] );
            PimPhoneBookModel model;
            auto loader = std::make_unique<Loader>();
            loader->SetModel( &model );
            bool isDone = false;
            int later = 0;
            QObject context;
            const auto count = [&] { later += isDone ? 1 : 0; };
            QObject::connect( loader.get(), &Loader::Grown, &context, count );
            QObject::connect( loader.get(), &Loader::Loaded, &context, count );
            QObject::connect( loader.get(), &Loader::Failed, &context, count );
            QObject::connect( &model, &PimPhoneBookModel::rowsAboutToBeInserted, &context, count );
            const auto slot = [&, &perform = act]
            {
                if ( !std::exchange( isDone, true ) )
                    perform( loader );
            };
            const std::vector<std::function<void()>> connections = {
                [&] { QObject::connect( loader.get(), &Loader::LoadingChanged, &context, slot ); },
                [&] { QObject::connect( loader.get(), &Loader::ProgressChanged, &context, slot ); },
                [&] { QObject::connect( loader.get(), &Loader::Grown, &context, slot ); },
                [&] { QObject::connect( loader.get(), &Loader::Loaded, &context, slot ); },
                [&] { QObject::connect( loader.get(), &Loader::Failed, &context, slot ); },
                [&] { QObject::connect( &model, &PimPhoneBookModel::rowsInserted, &context, slot ); } };
            connections[name]();
            const bool isFailing = names[name] == std::string( "failed" ) || names[name] == std::string( "grown" );
            loader->LoadDevice(
                Maker( TextOf( ManyContacts( 100 ) ), isFailing ? TestEnd::Fails : TestEnd::Finishes ) );
            ASSERT_TRUE( WaitFor( [&] { return isDone && ( !loader || !loader->IsLoading() ); } ) );
            EXPECT_EQ( loader == nullptr, action == std::string( "delete" ) );
            EXPECT_EQ( later, 0 );
        }
    }
}

TEST( PimPhoneBookLoaderWithoutApplicationTest, LoadingEndsWithTheApplication )
{
    struct CountedDevice : TestDevice
    {
        explicit CountedDevice( std::atomic<int>& a_deleted ) :
            TestDevice( TextOf( ManyContacts( 40 ) ), TestEnd::IsEndless ),
            m_deleted( a_deleted )
        {
        }
        ~CountedDevice() override { ++m_deleted; }
        std::atomic<int>& m_deleted;
    };
    std::atomic<int> deleted = 0;
    PimPhoneBookLoader loader;
    {
        int count = 0;
        const QCoreApplication application( count, nullptr );
        loader.LoadDevice( [&] { return std::make_unique<CountedDevice>( deleted ); } );
        loader.LoadDevice( [&] { return std::make_unique<CountedDevice>( deleted ); } );
    }
    EXPECT_EQ( deleted, 2 );
    EXPECT_TRUE( loader.IsLoading() );
}

TEST_F( PimPhoneBookLoaderTest, DeviceThatHangsDelaysNeitherTheLoaderNorTheEndOfTheProgram )
{
    PimPhoneBookModel model;
    PimPhoneBookLoader loader;
    LoaderEvents events( loader );
    loader.SetModel( &model );
    loader.LoadDevice( Maker( TextOf( ManyContacts( 40 ) ), TestEnd::Hangs ) );
    ASSERT_TRUE( WaitFor( [&] { return model.Count() == 32; } ) );
    loader.LoadBytes( TextOf( ManyContacts( 50 ) ) );
    ASSERT_TRUE( events.WaitForEnd() );
    EXPECT_EQ( model.Count(), 50 );
    // The fixture now deletes the application.
}

TEST_F( PimPhoneBookLoaderTest, ModelMayBeDeletedFirst )
{
    auto model = std::make_unique<PimPhoneBookModel>();
    PimPhoneBookLoader loader;
    loader.SetModel( model.get() );
    LoaderEvents events( loader );
    loader.LoadBytes( TextOf( ManyContacts( 100 ) ) );
    model.reset();
    ASSERT_TRUE( events.WaitForEnd() );
    ASSERT_EQ( events.m_loaded.size(), 1U );
    EXPECT_EQ( events.m_loaded.front().Size(), 100 );
}

TEST_F( PimPhoneBookLoaderTest, HostileBooksAreLoaded )
{
    QByteArray sameNames;
    for ( int i = 0; i < 3000; ++i )
        sameNames += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Same\r\nN:Same;;;;\r\nEND:VCARD\r\n";
    QByteArray numbers;
    for ( int i = 0; i < 100000; ++i )
        numbers += "TEL:1\r\n";
    const std::vector<std::pair<const char*, QByteArray>> rows = {
        { "one name", sameNames },
        { "many numbers", "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Many\r\n" + numbers + "END:VCARD\r\n" },
        { "no texts", QByteArray( "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:\r\nEND:VCARD\r\n" ).repeated( 100 ) },
        { "control characters",
          "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:\x01\x02\x7F\r\nN:\xED\xA0\x80;\x01;;;\r\nEND:VCARD\r\n" },
        { "only BEGIN", QByteArray( "BEGIN:VCARD\r\n" ).repeated( 1000 ) } };
    for ( const auto& [name, text] : rows )
    {
        SCOPED_TRACE( name );
        PimPhoneBookModel model;
        const ShadowList view( model );
        PimPhoneBookLoader loader;
        loader.SetModel( &model );
        for ( int round = 0; round < 2; ++round )
        {
            LoaderEvents events( loader );
            loader.LoadBytes( text );
            ASSERT_TRUE( events.WaitForEnd() );
            EXPECT_EQ( events.m_loaded.size(), 1U );
        }
        EXPECT_EQ( model.Count(), Contacts::PimContactBook::FromBytes( text ).Size() );
        EXPECT_EQ( view.Shown(), view.Expected() );
    }
}

} // namespace PimManager::PhoneBook
