#include "Terminal/ShortText.h"

#include "ToolsTestText.h"

using namespace PimManager::Tools;

namespace
{

QString Repeated( const char* a_character, int a_count )
{
    return QString::fromUtf8( a_character ).repeated( a_count );
}

constexpr const char* s_kTelescope = "\xF0\x9F\x94\xAD";

} // namespace

TEST( ShortTextTest, TextOfEightyCharactersStays )
{
    for ( const char* character : { "x", "\xC3\xA9", s_kTelescope } )
    {
        const QString text = Repeated( character, 80 );
        EXPECT_EQ( Utf8( Shortened( text ) ), Utf8( text ) );
    }
    EXPECT_TRUE( Shortened( QString() ).isEmpty() );
}

TEST( ShortTextTest, LongerTextIsCutAfterSixtyCharactersAndTellsItsLength )
{
    for ( const char* character : { "x", "\xC3\xA9", s_kTelescope } )
    {
        EXPECT_EQ( Utf8( Shortened( Repeated( character, 81 ) ) ),
                   Utf8( Repeated( character, 60 ) ) + "\xE2\x80\xA6 (81 characters)" );
        EXPECT_EQ( Utf8( Shortened( Repeated( character, 5944 ) ) ),
                   Utf8( Repeated( character, 60 ) ) + "\xE2\x80\xA6 (5944 characters)" );
    }
}

TEST( ShortTextTest, LengthsAreOfTheCallersChoice )
{
    EXPECT_EQ( Utf8( Shortened( Repeated( s_kTelescope, 3 ), 3, 2 ) ), Utf8( Repeated( s_kTelescope, 3 ) ) );
    EXPECT_EQ( Utf8( Shortened( Repeated( s_kTelescope, 4 ), 3, 2 ) ),
               Utf8( Repeated( s_kTelescope, 2 ) ) + "\xE2\x80\xA6 (4 characters)" );
}

TEST( ShortTextTest, ListOfTwentyStays )
{
    const QStringList list = QString( 19, QLatin1Char( ';' ) ).split( QLatin1Char( ';' ) );
    ASSERT_EQ( list.size(), 20 );
    EXPECT_EQ( ShortenedList( list ), list );
}

TEST( ShortTextTest, LongerListIsCutAndTellsItsLength )
{
    const QStringList list = QString( 999, QLatin1Char( ';' ) ).split( QLatin1Char( ';' ) );
    const QStringList shown = ShortenedList( list );
    EXPECT_EQ( shown.size(), 21 );
    EXPECT_EQ( Utf8( shown.last() ), "\xE2\x80\xA6 (1000 in all)" );
}

TEST( ShortTextTest, FullLengthCutsNothing )
{
    const QString text = Repeated( "x", 81 );
    EXPECT_EQ( Utf8( Shortened( text, TextLength::Full ) ), Utf8( text ) );
    EXPECT_EQ( Utf8( Shortened( text, TextLength::Short ) ), Utf8( Shortened( text ) ) );
    const QStringList list = QStringList( text ) + QString( 998, QLatin1Char( ';' ) ).split( QLatin1Char( ';' ) );
    EXPECT_EQ( ShortenedList( list, TextLength::Full ), list );
    const QStringList shown = ShortenedList( list, TextLength::Short );
    EXPECT_EQ( shown.size(), 21 );
    EXPECT_EQ( Utf8( shown.first() ), Utf8( Shortened( text ) ) );
}
