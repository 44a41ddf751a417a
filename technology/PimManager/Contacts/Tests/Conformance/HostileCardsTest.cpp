// Large cards. A check that is not linear takes minutes.

#include "FindingText.h"

namespace PimManager::Contacts
{

namespace
{

int CountOf( const QByteArray& a_lines, const QByteArray& a_version )
{
    PimContactOptions options;
    options.SetCardBytes( 0 );
    options.SetCardLines( 0 );
    options.SetLineBytes( 0 );
    const PimContactCard card =
        OnlyCard( "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\nFN:A\r\n" + a_lines + "\r\nEND:VCARD\r\n", options );
    return static_cast<int>( PimContactConformance( card ).Findings().size() );
}

} // namespace

TEST( HostileCardsTest, ManyLines )
{
    EXPECT_EQ( CountOf( QByteArray( "BDAY:x\r\n" ).repeated( 100000 ), "4.0" ), 100000 + 99999 );
}

TEST( HostileCardsTest, ManyAlternatives )
{
    QByteArray lines;
    for ( int i = 0; i < 100000; ++i )
        lines += "BDAY;ALTID=" + QByteArray::number( i ) + ":2000\r\n";
    EXPECT_EQ( CountOf( lines, "4.0" ), 99999 );
}

TEST( HostileCardsTest, ManyParameters )
{
    EXPECT_EQ( CountOf( "TEL" + QByteArray( ";PREF=0" ).repeated( 100000 ) + ":1", "4.0" ), 100000 + 1 );
    EXPECT_EQ( CountOf( "TEL;PREF=0" + QByteArray( ",0" ).repeated( 99999 ) + ":1", "4.0" ), 100000 + 1 );
}

TEST( HostileCardsTest, LongValues )
{
    const int length = 600000;
    for ( const char byte : { 'a', ';', ',', '"', '-', ':' } )
        EXPECT_EQ( CountOf( "NOTE:" + QByteArray( length, byte ), "4.0" ), 1 ) << byte;
    EXPECT_EQ( CountOf( "NOTE:" + QByteArray( length, '\\' ) + "q", "4.0" ), 1 );
    EXPECT_EQ( CountOf( "BDAY:" + QByteArray( length, '-' ), "4.0" ), 2 );
    EXPECT_EQ( CountOf( "URL:" + QByteArray( length, '%' ), "4.0" ), 2 );
    EXPECT_EQ( CountOf( "LANG:" + QByteArray( length, '-' ), "4.0" ), 2 );
    EXPECT_EQ( CountOf( "ADR:" + QByteArray( length, ';' ), "4.0" ), 2 );
    EXPECT_EQ( CountOf( "X-A;VALUE=integer:" + QByteArray( "1," ).repeated( length / 2 ), "4.0" ), 2 );
}

TEST( HostileCardsTest, ManyFolds )
{
    EXPECT_EQ( CountOf( "NOTE:" + QByteArray( "\r\n a" ).repeated( 100000 ), "4.0" ), 0 );
    EXPECT_EQ( CountOf( "NOTE:" + QByteArray( "\xC3\r\n \xA4" ).repeated( 100000 ), "4.0" ), 1 );
}

} // namespace PimManager::Contacts
