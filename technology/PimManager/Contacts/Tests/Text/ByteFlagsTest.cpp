#include "Text/ByteFlags.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr size_t s_kLongest = 50;

TEST( ByteFlagsTest, OrdinaryTextHasNone )
{
    for ( size_t length = 0; length <= s_kLongest; ++length )
    {
        const ByteFlags flags = ByteFlagsOf( std::string( length, '~' ) );
        EXPECT_TRUE( flags.m_isAscii ) << length;
        EXPECT_FALSE( flags.m_hasDelete ) << length;
        EXPECT_FALSE( flags.m_hasBackslash ) << length;
    }
}

TEST( ByteFlagsTest, ByteIsFoundAtEveryPlace )
{
    for ( size_t length = 1; length <= s_kLongest; ++length )
    {
        for ( size_t place = 0; place < length; ++place )
        {
            for ( const char byte : { '\x80', '\xFF', '\x7F', '\\' } )
            {
                std::string text( length, 'a' );
                text[place] = byte;
                const ByteFlags flags = ByteFlagsOf( text );
                EXPECT_EQ( flags.m_isAscii, byte == '\x7F' || byte == '\\' ) << place << " of " << length;
                EXPECT_EQ( flags.m_hasDelete, byte == '\x7F' ) << place << " of " << length;
                EXPECT_EQ( flags.m_hasBackslash, byte == '\\' ) << place << " of " << length;
            }
        }
    }
}

} // namespace

} // namespace PimManager::Contacts
