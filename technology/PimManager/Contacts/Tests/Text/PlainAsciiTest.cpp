#include "Text/PlainAscii.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace PimManager::Contacts
{

namespace
{

bool IsPrintable( char a_byte )
{
    return a_byte >= ' ' && a_byte <= '~';
}

} // namespace

// Words of eight bytes are looked at, some of them together.
TEST( PlainAsciiTest, EachByteIsFoundAtEveryPlace )
{
    for ( size_t length = 1; length < 80; ++length )
    {
        for ( size_t place = 0; place < length; ++place )
        {
            for ( int other = 0; other < 256; ++other )
            {
                std::string text( length, ' ' );
                text[place] = static_cast<char>( other );
                ASSERT_EQ( IsPrintableAscii( text ), IsPrintable( text[place] ) ) << length << ' ' << place;
            }
        }
    }
}

TEST( PlainAsciiTest, TextsOfOneByteAreJudgedByIt )
{
    for ( int byte = 0; byte < 256; ++byte )
    {
        const std::string text( 21, static_cast<char>( byte ) );
        EXPECT_EQ( IsPrintableAscii( text ), IsPrintable( text.front() ) ) << byte;
    }
}

TEST( PlainAsciiTest, EmptyTextHasNothingElse )
{
    EXPECT_TRUE( IsPrintableAscii( {} ) );
}

} // namespace PimManager::Contacts
