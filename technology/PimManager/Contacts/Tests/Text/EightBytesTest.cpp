#include "Text/EightBytes.h"
#include "Text/Bytes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

TEST( EightBytesTest, FirstBytesAreInOneNumber )
{
    const std::string text = "\x01\x82\x03\x04\x05\x06\x07\x88\x09";
    const std::vector<quint64> expected = {
        0x0,          0x01,           0x8201,           0x038201,           0x04038201,
        0x0504038201, 0x060504038201, 0x07060504038201, 0x8807060504038201, 0x8807060504038201 };
    for ( size_t length = 0; length <= text.size(); ++length )
    {
        // The text ends where its memory does.
        const std::string start = text.substr( 0, length );
        EXPECT_EQ( FirstEight( start ), expected.at( length ) ) << length;
    }
}

TEST( EightBytesTest, FillerFollowsAShorterText )
{
    for ( size_t length = 0; length <= s_kWord; ++length )
    {
        const std::string text( length, '\x80' );
        EXPECT_EQ( FirstEight( text, 'x' ), FirstEight( text + std::string( s_kWord - length, 'x' ) ) ) << length;
    }
}

TEST( EightBytesTest, FirstBytesOfALongerTextAreThoseOfItsBeginning )
{
    const std::string text = "\x81mail:\xFFxyz\x7F";
    for ( size_t size = 1; size <= text.size(); ++size )
    {
        // The text ends where its memory does.
        const std::string longer = text.substr( 0, size );
        for ( size_t length = 1; length <= size; ++length )
            EXPECT_EQ( FirstEightOf( longer, length ), FirstEight( longer.substr( 0, length ) ) )
                << length << " of " << size;
    }
}

TEST( EightBytesTest, OnlyLettersOfAsciiChangeTheirCase )
{
    for ( int byte = 0; byte < 256; ++byte )
    {
        const std::string text( s_kWord, static_cast<char>( byte ) );
        EXPECT_EQ( UpperOfEight( FirstEight( text ) ), FirstEight( std::string( s_kWord, Upper( text[0] ) ) ) ) << byte;
        EXPECT_EQ( LowerOfEight( FirstEight( text ) ), FirstEight( std::string( s_kWord, Lower( text[0] ) ) ) ) << byte;
    }
}

} // namespace PimManager::Contacts
