#include "Lines/IndexBuffer.h"

#include <cstring>

namespace PimManager::Contacts
{

NumberEnd ReadLongNumber( const uchar* a_place )
{
    const uchar* place = a_place;
    uint byte = *place++;
    quint32 number = byte & ~s_kNumberContinues;
    for ( uint shift = s_kBitsOfNumberByte; byte >= s_kNumberContinues; shift += s_kBitsOfNumberByte )
    {
        byte = *place++;
        number |= ( byte & ~s_kNumberContinues ) << shift;
    }
    return { place, number };
}

// Large indexes grow by a quarter and do not double, because they count towards the memory limit of a reader.
void IndexBuffer::Grow( size_t a_size )
{
    constexpr size_t s_kLarge = size_t( 16 ) * 1024;
    const size_t needed = m_bytes.size() + a_size;
    m_bytes.resize( needed + ( needed > s_kLarge ? needed / 8 : needed ) );
}

void IndexBuffer::Release()
{
    constexpr size_t s_kLarge = size_t( 64 ) * 1024;
    m_size = 0;
    if ( m_bytes.size() > s_kLarge )
        m_bytes = std::vector<uchar>();
}

void IndexBuffer::Copy( IndexBytes a_bytes )
{
    std::memcpy( Begin( a_bytes.m_size ), a_bytes.m_data, a_bytes.m_size );
    m_size += a_bytes.m_size;
}

} // namespace PimManager::Contacts
