#include "Text/Bytes.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

TEST( BytesTest, AsciiOfAnyLengthBecomesTheSameString )
{
    std::string text;
    for ( int length = 0; length < 60; ++length )
    {
        EXPECT_EQ( StringOf( text ), QString::fromStdString( text ) ) << length;
        EXPECT_EQ( StringOf( text ).size(), length );
        text += static_cast<char>( length * 7 % 128 );
    }
}

TEST( BytesTest, DigitsAreAllDigitsAndNotEmpty )
{
    EXPECT_TRUE( AreDigits( "0123456789" ) );
    for ( const char* text : { "", "/", ":", "1a", "-1", "\xD9\xA1" } )
        EXPECT_FALSE( AreDigits( text ) ) << text;
}

TEST( BytesTest, WideByteIsSeenAtEveryPlace )
{
    for ( size_t length = 1; length < 40; ++length )
    {
        EXPECT_TRUE( AreAllAscii( std::string( length, '\x7F' ) ) ) << length;
        for ( size_t place = 0; place < length; ++place )
        {
            std::string text( length, 'a' );
            text[place] = '\x80';
            EXPECT_FALSE( AreAllAscii( text ) ) << length << ' ' << place;
        }
    }
}

TEST( BytesTest, TextBeyondAsciiIsReadAsUtf8AtEveryPlace )
{
    for ( size_t place = 0; place < 30; ++place )
    {
        const std::string text = std::string( place, 'a' ) + "\xC3\xA9" + std::string( 30 - place, 'b' );
        EXPECT_EQ( StringOf( text ), QString::fromStdString( text ) ) << place;
    }
}

TEST( BytesTest, ByteOrderMarksAtTheStartAreCharacters )
{
    const auto mark = QString( QChar( QChar::ByteOrderMark ) );
    EXPECT_EQ( StringOf( "\xEF\xBB\xBF" ), mark );
    EXPECT_EQ( StringOf( "\xEF\xBB\xBF\xEF\xBB\xBFx" ), mark + mark + QLatin1Char( 'x' ) );
}

} // namespace PimManager::Contacts
