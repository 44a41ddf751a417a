#include "Lines/IndexBuffer.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct NumberRow
{
    quint32 m_number;
    std::vector<uchar> m_bytes;
};

std::vector<uchar> Copied( IndexBytes a_bytes )
{
    return std::vector<uchar>( a_bytes.m_data, a_bytes.m_data + a_bytes.m_size );
}

} // namespace

TEST( IndexBufferTest, NumbersHaveSevenBitsAByte )
{
    const std::vector<NumberRow> rows = {
        { 0, { 0x00 } },
        { 1, { 0x01 } },
        { 127, { 0x7F } },
        { 128, { 0x80, 0x01 } },
        { 300, { 0xAC, 0x02 } },
        { 16383, { 0xFF, 0x7F } },
        { 16384, { 0x80, 0x80, 0x01 } },
        { 0x1FFFFF, { 0xFF, 0xFF, 0x7F } },
        { 0x200000, { 0x80, 0x80, 0x80, 0x01 } },
        { 0x10000000, { 0x80, 0x80, 0x80, 0x80, 0x01 } },
        { 0xFFFFFFFF, { 0xFF, 0xFF, 0xFF, 0xFF, 0x0F } },
    };
    for ( const NumberRow& row : rows )
    {
        std::array<uchar, s_kLongestNumber> bytes = {};
        const uchar* const end = WriteNumber( bytes.data(), row.m_number );
        EXPECT_EQ( std::vector<uchar>( static_cast<const uchar*>( bytes.data() ), end ), row.m_bytes ) << row.m_number;
        const uchar* place = row.m_bytes.data();
        EXPECT_EQ( ReadNumber( place ), row.m_number );
        EXPECT_EQ( place, row.m_bytes.data() + row.m_bytes.size() ) << row.m_number;
    }
}

TEST( IndexBufferTest, BytesFollowEachOther )
{
    IndexBuffer buffer;
    std::vector<uchar> expected;
    for ( quint32 number = 0; number < 70000; number += 7 )
    {
        const std::array<uchar, 2> bytes = { static_cast<uchar>( number ), static_cast<uchar>( number >> 8 ) };
        if ( number % 2 == 0 )
            buffer.Add( { bytes.data(), 2 } );
        else
        {
            uchar* const place = buffer.Begin( s_kLongestNumber );
            place[0] = bytes[0];
            place[1] = bytes[1];
            buffer.End( place + 2 );
        }
        expected.insert( expected.end(), bytes.begin(), bytes.end() );
    }
    EXPECT_EQ( Copied( buffer.Bytes() ), expected );
}

TEST( IndexBufferTest, EmptyBytesAddNothing )
{
    IndexBuffer buffer;
    buffer.Add( {} );
    EXPECT_EQ( buffer.Bytes().m_size, 0U );
}

TEST( IndexBufferTest, ClearedAndReleasedBuffersAreEmptyAndUsable )
{
    const std::vector<uchar> large( 100000, 0x55 );
    const std::vector<uchar> small = { 1, 2, 3 };
    for ( const bool isReleased : { false, true } )
    {
        for ( const std::vector<uchar>* const first : { &small, &large } )
        {
            IndexBuffer buffer;
            buffer.Add( { first->data(), static_cast<quint32>( first->size() ) } );
            isReleased ? buffer.Release() : buffer.Clear();
            EXPECT_EQ( buffer.Bytes().m_size, 0U ) << isReleased << ' ' << first->size();
            buffer.Add( { small.data(), 3 } );
            EXPECT_EQ( Copied( buffer.Bytes() ), small ) << isReleased << ' ' << first->size();
        }
    }
}

} // namespace PimManager::Contacts
