// Checks that the list shows each contact of a messy book once, in order, and without a message from QML.
#include "ContactsView.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QQuickItem>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

using namespace PimManager::Contacts;

namespace
{

using Texts = std::vector<std::string>;

constexpr std::size_t s_kContacts = 10;

Texts g_messages;

void KeepMessage( QtMsgType, const QMessageLogContext&, const QString& a_text )
{
    g_messages.push_back( a_text.toStdString() );
}

// All items of a name below an item, from top to bottom.
std::vector<QQuickItem*> Items( const QQuickItem* a_parent, const char* a_name )
{
    std::vector<QQuickItem*> items;
    for ( QQuickItem* child : a_parent->childItems() )
    {
        if ( child->objectName() == QLatin1String( a_name ) )
            items.push_back( child );
        const std::vector<QQuickItem*> below = Items( child, a_name );
        items.insert( items.end(), below.begin(), below.end() );
    }
    const auto top = []( const QQuickItem* a_item ) { return a_item->mapToScene( QPointF() ).y(); };
    std::stable_sort( items.begin(), items.end(),
                      [&top]( const auto* a_left, const auto* a_right ) { return top( a_left ) < top( a_right ); } );
    return items;
}

// A list that is tall enough to show all contacts at once.
class QmlContactsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_view.resize( 360, 2000 );
        m_view.show();
        ASSERT_EQ( m_view.status(), QQuickView::Ready );
        // A ListView creates its rows when it is drawn.
        const QDeadlineTimer deadline( 10000 );
        while ( Shown( "row" ).size() < s_kContacts && !deadline.hasExpired() )
            QCoreApplication::processEvents( QEventLoop::AllEvents, 50 );
        ASSERT_EQ( Shown( "row" ).size(), s_kContacts );
    }

    void TearDown() override { EXPECT_EQ( g_messages, Texts() ) << "QML reports something"; }

    std::vector<QQuickItem*> Shown( const char* a_name ) const { return Items( m_view.rootObject(), a_name ); }

    Texts ShownTexts( const char* a_name ) const
    {
        Texts texts;
        for ( const QQuickItem* item : Shown( a_name ) )
            texts.push_back( item->property( "text" ).toString().toStdString() );
        return texts;
    }

    const PimContactBook m_book = PimContactBook::ReadFile( QStringLiteral( MESSY_BOOK ) );
    ContactsView m_view{ m_book };
};

TEST_F( QmlContactsTest, EachContactHasItsNameAndNumber )
{
    std::map<std::string, std::string> expected;
    for ( const PimContact& contact : m_book )
    {
        const PimContactPhone phone = contact.Phones().Preferred();
        const QString number = phone.Text() + QStringLiteral( "  " ) + phone.Purpose();
        expected[contact.DisplayName().toStdString()] = number.toStdString();
    }
    const Texts names = ShownTexts( "name" );
    const Texts numbers = ShownTexts( "number" );
    ASSERT_EQ( names.size(), numbers.size() );
    std::map<std::string, std::string> shown;
    for ( std::size_t i = 0; i < names.size(); ++i )
        shown[names[i]] = numbers[i];
    EXPECT_EQ( shown, expected );
}

TEST_F( QmlContactsTest, ContactsAreSortedIntoSections )
{
    const Texts sections = ShownTexts( "section" );
    EXPECT_EQ( sections, ( Texts{ "#", "B", "C", "L", "M", "Q", "Ó", "ا", "月" } ) );
    EXPECT_EQ( ShownTexts( "name" ).front(), "<b>Bobby</b> <script>alert(\"table\")</script>" );
    EXPECT_EQ( ShownTexts( "name" ).back(), "はるか 月見里" );
}

TEST_F( QmlContactsTest, PhotoReplacesTheInitials )
{
    const std::vector<QQuickItem*> photos = Shown( "photo" );
    const std::vector<QQuickItem*> initials = Shown( "initials" );
    const Texts names = ShownTexts( "name" );
    ASSERT_EQ( photos.size(), names.size() );
    ASSERT_EQ( initials.size(), names.size() );
    Texts withPhoto;
    for ( std::size_t i = 0; i < names.size(); ++i )
    {
        const bool isReady = photos[i]->property( "status" ).toInt() == 1;
        EXPECT_NE( initials[i]->isVisible(), isReady ) << names[i];
        EXPECT_FALSE( initials[i]->property( "text" ).toString().isEmpty() ) << names[i];
        if ( isReady )
            withPhoto.push_back( names[i] );
    }
    EXPECT_EQ( withPhoto, ( Texts{ "Nell Imogen Brackwater", "Crumb & Kettle Bakery" } ) );
}

} // namespace

int main( int argc, char* argv[] )
{
    const QGuiApplication application( argc, argv );
    qInstallMessageHandler( KeepMessage );
    testing::InitGoogleTest( &argc, argv );
    return RUN_ALL_TESTS();
}
