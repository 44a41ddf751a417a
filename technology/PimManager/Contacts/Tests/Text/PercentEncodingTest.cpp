#include "Text/PercentEncoding.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

std::string Decoded( std::string_view a_text )
{
    QByteArray out = "<";
    AppendPercentDecoded( a_text, out );
    return out.toStdString();
}

} // namespace

TEST( PercentEncodingTest, BytesAreDecoded )
{
    EXPECT_EQ( Decoded( "" ), "<" );
    EXPECT_EQ( Decoded( "plain" ), "<plain" );
    EXPECT_EQ( Decoded( "%41b%63" ), "<Abc" );
    EXPECT_EQ( Decoded( "%c3%A9" ), "<\xC3\xA9" );
    EXPECT_EQ( Decoded( "%2541" ), "<%41" );
    EXPECT_EQ( Decoded( "%00" ), std::string( "<\0", 2 ) );
}

TEST( PercentEncodingTest, SignsThatEncodeNothingAreKept )
{
    for ( const char* text : { "%", "%4", "%G0", "%0G", "100 % sure", "%%" } )
        EXPECT_EQ( Decoded( text ), std::string( "<" ) + text );
    EXPECT_EQ( Decoded( "%%41" ), "<%A" );
    EXPECT_EQ( PercentByte( "%4", 0 ), -1 );
    EXPECT_EQ( PercentByte( "a%fF", 1 ), 255 );
}

} // namespace PimManager::Contacts
