#include "Text/Buffer.h"

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

TEST( BufferTest, SmallBufferKeepsItsMemory )
{
    QByteArray buffer;
    Resize( buffer, 1000 );
    EXPECT_EQ( buffer.size(), 1000 );
    const char* const memory = buffer.constData();
    for ( const int size : { 10, 1000, 0, 500 } )
    {
        Resize( buffer, size );
        EXPECT_EQ( buffer.size(), size );
        EXPECT_EQ( buffer.constData(), memory ) << size;
    }
    Empty( buffer );
    EXPECT_EQ( buffer.size(), 0 );
    EXPECT_GE( buffer.capacity(), 1000 );
}

TEST( BufferTest, LargeBufferIsGivenBack )
{
    QByteArray buffer;
    Resize( buffer, 1000000 );
    Resize( buffer, 999999 );
    EXPECT_GE( buffer.capacity(), 1000000 );
    Resize( buffer, 10 );
    EXPECT_LT( buffer.capacity(), 1000 );
    Resize( buffer, 1000000 );
    Empty( buffer );
    EXPECT_LT( buffer.capacity(), 1000 );
}

TEST( BufferTest, TextsAreAppendedInTheirOrder )
{
    QByteArray buffer( "a" );
    AppendAll( buffer, { "bc", "", "d" } );
    EXPECT_EQ( buffer, QByteArray( "abcd" ) );
    AppendAll( buffer, { std::string_view(), "" } );
    AppendAll( buffer, {} );
    EXPECT_EQ( buffer, QByteArray( "abcd" ) );
}

} // namespace PimManager::Contacts
