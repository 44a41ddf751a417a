// Types, dials and reloads, and compares what the list shows with the book. QML must not print a message.
#include "ContactsView.h"

#include <PimManager/PhoneBook/PimPhoneBookLoader.h>
#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

namespace
{

using Texts = std::vector<std::string>;

Texts g_messages;

void KeepMessage( QtMsgType, const QMessageLogContext&, const QString& a_text )
{
    g_messages.push_back( a_text.toStdString() );
}

// All visible items of a name below an item, from top to bottom.
std::vector<QQuickItem*> Items( const QQuickItem* a_parent, const char* a_name )
{
    std::vector<QQuickItem*> items;
    for ( QQuickItem* child : a_parent->childItems() )
    {
        if ( child->objectName() == QLatin1String( a_name ) && child->isVisible() )
            items.push_back( child );
        const std::vector<QQuickItem*> below = Items( child, a_name );
        items.insert( items.end(), below.begin(), below.end() );
    }
    const auto top = []( const QQuickItem* a_item ) { return a_item->mapToScene( QPointF() ).y(); };
    std::stable_sort( items.begin(), items.end(),
                      [&top]( const auto* a_left, const auto* a_right ) { return top( a_left ) < top( a_right ); } );
    return items;
}

QByteArray ManyContacts( int a_first, int a_count )
{
    QByteArray text;
    for ( int i = a_first; i < a_first + a_count; ++i )
    {
        const QByteArray number = QByteArray::number( 10000 + i );
        text += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Contact " + number + "\r\nN:Contact;" + number +
                ";;;\r\nTEL:+1-555-" + number + "\r\nUID:" + number + "\r\nEND:VCARD\r\n";
    }
    return text;
}

class QmlContactsTest : public testing::Test
{
protected:
    void TearDown() override
    {
        EXPECT_EQ( g_messages, Texts() ) << "QML reports something";
        g_messages.clear();
    }

    // A wide window is tall enough to show all contacts and the dial pad.
    void Show( const QString& a_fileName, const QSize& a_size = QSize( 2400, 2000 ) )
    {
        m_view = std::make_unique<ContactsView>( a_fileName );
        m_view->resize( a_size );
        m_view->show();
        ASSERT_EQ( m_view->status(), QQuickView::Ready );
        m_view->requestActivate();
        ASSERT_TRUE( QTest::qWaitForWindowActive( m_view.get() ) );
        WaitUntil( [this] { return !m_view->Loader().IsLoading() && IsListUpToDate(); } );
    }

    void ShowMessyBook() { Show( QStringLiteral( MESSY_BOOK ) ); }

    void ShowText( const QByteArray& a_text, const QSize& a_size )
    {
        Write( a_text );
        Show( FileName(), a_size );
    }

    void Write( const QByteArray& a_text ) const
    {
        QFile file( FileName() );
        ASSERT_TRUE( file.open( QIODevice::WriteOnly ) && file.write( a_text ) == a_text.size() );
    }

    QString FileName() const { return m_folder.filePath( QStringLiteral( "contacts.vcf" ) ); }

    // A ListView creates its rows when it is drawn.
    void WaitUntil( const std::function<bool()>& a_isTrue ) const
    {
        const QDeadlineTimer deadline( 20000 );
        while ( !a_isTrue() && !deadline.hasExpired() )
            QTest::qWait( 10 );
        ASSERT_TRUE( a_isTrue() );
    }

    // In a window that is tall enough, all rows of the model are shown.
    bool IsListUpToDate() const
    {
        const PimPhoneBookModel& model = m_view->Model();
        Texts names;
        for ( int row = 0; row < model.Count(); ++row )
            names.push_back( model.index( row ).data().toString().toStdString() );
        const bool isTall = m_view->height() >= 2000;
        return List()->property( "count" ).toInt() == model.Count() && ( !isTall || ShownTexts( "name" ) == names );
    }

    void WaitForList() const
    {
        WaitUntil( [this] { return IsListUpToDate(); } );
    }

    // A ListView also has rows that are out of sight.
    std::vector<QQuickItem*> Shown( const char* a_name ) const
    {
        std::vector<QQuickItem*> items = Items( m_view->rootObject(), a_name );
        const auto isOutOfSight = [this]( const QQuickItem* a_item )
        {
            const double top = a_item->mapToScene( QPointF() ).y();
            return top + a_item->height() < 0 || top > m_view->height();
        };
        items.erase( std::remove_if( items.begin(), items.end(), isOutOfSight ), items.end() );
        return items;
    }
    QQuickItem* List() const { return Shown( "list" ).at( 0 ); }

    Texts ShownTexts( const char* a_name ) const
    {
        Texts texts;
        for ( const QQuickItem* item : Shown( a_name ) )
            texts.push_back( item->property( "text" ).toString().toStdString() );
        return texts;
    }

    void Click( const char* a_name ) const
    {
        ASSERT_EQ( Shown( a_name ).size(), 1U ) << a_name;
        const QQuickItem* const item = Shown( a_name ).front();
        const QPointF middle = item->mapToScene( QPointF( item->width() / 2, item->height() / 2 ) );
        QTest::mouseClick( m_view.get(), Qt::LeftButton, Qt::NoModifier, middle.toPoint() );
    }

    void Dial( const std::string& a_keys ) const
    {
        for ( const char key : a_keys )
            Click( ( std::string( "key" ) + key ).c_str() );
        WaitForList();
    }

    void Type( const QString& a_text ) const
    {
        for ( const QChar character : a_text )
            QTest::keyClick( m_view.get(), character.toLatin1() );
        WaitForList();
    }

    QTemporaryDir m_folder;
    std::unique_ptr<ContactsView> m_view;
};

TEST_F( QmlContactsTest, EachContactHasItsNameAndNumber )
{
    ShowMessyBook();
    std::multimap<std::string, std::string> expected;
    for ( const PimContact& contact : PimContactBook::ReadFile( QStringLiteral( MESSY_BOOK ) ) )
    {
        const QString number = contact.Phones().Preferred().Text();
        const QString organisation = contact.Organisations().Preferred().Text();
        const QString separator = organisation.isEmpty() ? QString() : QStringLiteral( "  \u00B7  " );
        expected.emplace( contact.DisplayName().toStdString(), ( number + separator + organisation ).toStdString() );
    }
    const Texts names = ShownTexts( "name" );
    const Texts numbers = ShownTexts( "number" );
    ASSERT_EQ( names.size(), numbers.size() );
    std::multimap<std::string, std::string> shown;
    for ( std::size_t i = 0; i < names.size(); ++i )
        shown.emplace( names[i], numbers[i] );
    EXPECT_EQ( shown, expected );
}

TEST_F( QmlContactsTest, SectionsAreThoseOfTheModel )
{
    ShowMessyBook();
    Texts expected;
    const PimPhoneBookModel& model = m_view->Model();
    for ( int row = 0; row < model.Count(); ++row )
    {
        const QVariant section = model.data( model.index( row ), PimPhoneBookModel::SectionRole );
        if ( expected.empty() || expected.back() != section.toString().toStdString() )
            expected.push_back( section.toString().toStdString() );
    }
    EXPECT_GT( expected.size(), 5U );
    EXPECT_EQ( ShownTexts( "section" ), expected );
}

TEST_F( QmlContactsTest, PhotoReplacesTheInitials )
{
    ShowMessyBook();
    WaitUntil( [this] { return Shown( "initials" ).size() == 8; } );
    const Texts names = ShownTexts( "name" );
    const std::vector<QQuickItem*> photos = Shown( "photo" );
    ASSERT_EQ( photos.size(), names.size() );
    Texts withPhoto;
    for ( std::size_t i = 0; i < names.size(); ++i )
    {
        if ( photos[i]->property( "status" ).toInt() == 1 )
            withPhoto.push_back( names[i] );
    }
    std::sort( withPhoto.begin(), withPhoto.end() );
    EXPECT_EQ( withPhoto, ( Texts{ "Crumb & Kettle Bakery", "Nell Imogen Brackwater" } ) );
    for ( const std::string& initials : ShownTexts( "initials" ) )
        EXPECT_FALSE( initials.empty() );
}

TEST_F( QmlContactsTest, TypedTextFindsContacts )
{
    ShowMessyBook();
    Type( QStringLiteral( "tob" ) );
    EXPECT_EQ( ShownTexts( "name" ), Texts{ "Dr. Tobias F. Quillfeather" } );
    EXPECT_TRUE( ShownTexts( "section" ).empty() || ShownTexts( "section" ) == Texts{ "" } );
    Type( QStringLiteral( "zz" ) );
    EXPECT_EQ( ShownTexts( "name" ), Texts() );
    EXPECT_EQ( ShownTexts( "nothing" ), Texts{ "no contact" } );
    Click( "searchButton" );
    WaitForList();
    EXPECT_EQ( ShownTexts( "search" ), Texts{ "" } );
    EXPECT_EQ( ShownTexts( "name" ).size(), 10U );
}

TEST_F( QmlContactsTest, DialledNumberFindsContactsAndShowsTheCaller )
{
    ShowMessyBook();
    Type( QStringLiteral( "nell" ) );
    Dial( "15550110" );
    EXPECT_EQ( ShownTexts( "search" ), Texts{ "" } );
    EXPECT_EQ( ShownTexts( "dialled" ), Texts{ "15550110" } );
    EXPECT_EQ( ShownTexts( "name" ), Texts{ "Dr. Tobias F. Quillfeather" } );
    ASSERT_EQ( ShownTexts( "caller" ).size(), 1U );
    EXPECT_NE( ShownTexts( "caller" ).front().find( "Dr. Tobias F. Quillfeather" ), std::string::npos );
    Click( "erase" );
    WaitForList();
    EXPECT_EQ( ShownTexts( "dialled" ), Texts{ "1555011" } );
    EXPECT_EQ( ShownTexts( "caller" ), Texts{ "" } );
}

TEST_F( QmlContactsTest, TouchedContactIsReadyToBeCalled )
{
    ShowMessyBook();
    Type( QStringLiteral( "barnaby" ) );
    Click( "row" );
    WaitForList();
    EXPECT_EQ( ShownTexts( "dialled" ), Texts{ "+1-555-0150" } );
    Click( "call" );
    EXPECT_EQ( g_messages, Texts{ "calling +1-555-0150" } );
    g_messages.clear();
}

TEST_F( QmlContactsTest, PadOfNarrowWindowOpensAndCloses )
{
    ShowText( ManyContacts( 0, 100 ), QSize( 360, 640 ) );
    EXPECT_TRUE( Shown( "key5" ).empty() );
    Click( "padButton" );
    WaitForList();
    EXPECT_EQ( Shown( "key5" ).size(), 1U );
    EXPECT_TRUE( Shown( "padButton" ).empty() );
    Click( "padHandle" );
    WaitForList();
    EXPECT_TRUE( Shown( "key5" ).empty() );
}

TEST_F( QmlContactsTest, ReloadedListKeepsItsPlace )
{
    ShowText( ManyContacts( 100, 200 ), QSize( 360, 640 ) );
    ASSERT_TRUE( QMetaObject::invokeMethod( List(), "positionViewAtIndex", Q_ARG( int, 100 ), Q_ARG( int, 0 ) ) );
    WaitForList();
    const Texts before = ShownTexts( "name" );
    const double top = Shown( "row" ).front()->mapToScene( QPointF() ).y();
    ASSERT_EQ( std::count( before.begin(), before.end(), "Contact 10200" ), 1 );
    Write( ManyContacts( 90, 210 ) );
    Click( "searchButton" );
    WaitUntil( [this] { return m_view->Model().Count() == 210 && IsListUpToDate(); } );
    EXPECT_EQ( ShownTexts( "name" ), before );
    EXPECT_EQ( Shown( "row" ).front()->mapToScene( QPointF() ).y(), top );
}

TEST_F( QmlContactsTest, MissingFileIsReported )
{
    Show( FileName() );
    EXPECT_EQ( ShownTexts( "error" ), Texts{ "No such file or directory" } );
}

} // namespace

int main( int argc, char* argv[] )
{
    const QGuiApplication application( argc, argv );
    qInstallMessageHandler( KeepMessage );
    testing::InitGoogleTest( &argc, argv );
    return RUN_ALL_TESTS();
}
