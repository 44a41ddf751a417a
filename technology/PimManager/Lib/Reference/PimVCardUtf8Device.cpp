#include "PimVCardUtf8Device.h"

#include <QByteArray>

#include <algorithm>
#include <cstring>

namespace PimManager::vCard
{

namespace
{

// Not a multiple of eight: Qt decodes eight or sixteen ASCII bytes at a time without noting that the text has begun,
// and would then take a U+FEFF at the start of the next block for a byte order mark.
constexpr qint64 s_kBlockSize = 1023;
constexpr qint64 s_kLongestSequence = 4;

bool IsContinuation( uchar a_byte )
{
    return ( a_byte & 0xC0 ) == 0x80;
}

qint64 SequenceLength( uchar a_leadByte )
{
    if ( a_leadByte < 0xC0 )
        return 1;
    if ( a_leadByte < 0xE0 )
        return 2;
    return a_leadByte < 0xF0 ? 3 : s_kLongestSequence;
}

} // namespace

PimVCardUtf8Device::PimVCardUtf8Device( const QByteArray* a_data ) :
    m_data( a_data )
{
    open( QIODevice::ReadOnly | QIODevice::Unbuffered );
}

qint64 PimVCardUtf8Device::size() const
{
    return m_data->size();
}

qint64 PimVCardUtf8Device::readData( char* a_buffer, qint64 a_maxSize )
{
    const qint64 start = pos();
    const qint64 wanted = std::min( { a_maxSize, s_kBlockSize, size() - start } );
    if ( wanted <= 0 )
        return 0;
    const qint64 length = WholeSequences( start, wanted );
    std::memcpy( a_buffer, m_data->constData() + start, static_cast<size_t>( length ) );
    return length;
}

qint64 PimVCardUtf8Device::writeData( const char* /*a_buffer*/, qint64 /*a_size*/ )
{
    return -1;
}

qint64 PimVCardUtf8Device::WholeSequences( qint64 a_start, qint64 a_length ) const
{
    const qint64 end = a_start + a_length;
    if ( end == size() )
        return a_length;
    const auto byteAt = [this]( qint64 a_place )
    { return static_cast<uchar>( m_data->at( static_cast<int>( a_place ) ) ); };
    qint64 lead = end - 1;
    while ( lead > a_start && end - lead < s_kLongestSequence && IsContinuation( byteAt( lead ) ) )
        --lead;
    const bool isCut = lead > a_start && lead + SequenceLength( byteAt( lead ) ) > end;
    return isCut ? lead - a_start : a_length;
}

} // namespace PimManager::vCard
