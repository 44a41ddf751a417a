#include "Checks/TrickleDevice.h"

#include <algorithm>

namespace PimManager::Contacts::Checks
{

TrickleDevice::TrickleDevice( const QByteArray& a_bytes, unsigned a_seed, int a_most ) :
    m_bytes( a_bytes ),
    m_random( a_seed + 1 ),
    m_most( a_most )
{
}

qint64 TrickleDevice::bytesAvailable() const
{
    return QIODevice::bytesAvailable() + m_arrived - m_read;
}

bool TrickleDevice::waitForReadyRead( int )
{
    return Arrive() && !m_isFinished;
}

bool TrickleDevice::Arrive()
{
    if ( m_isFinished )
        return false;
    const qint64 missing = m_bytes.size() - m_arrived;
    if ( missing == 0 )
    {
        m_isFinished = true;
        emit readChannelFinished();
        return true;
    }
    m_arrived += std::min( missing, Below( m_most ) + 1 );
    emit readyRead();
    return true;
}

qint64 TrickleDevice::readData( char* a_bytes, qint64 a_size )
{
    const qint64 arrived = m_arrived - m_read;
    if ( arrived == 0 )
        return m_isFinished ? -1 : 0;
    const qint64 size = m_isFinished ? std::min( a_size, arrived ) : std::min( a_size, Below( arrived + 1 ) );
    std::copy_n( m_bytes.constData() + m_read, size, a_bytes );
    m_read += size;
    return size;
}

qint64 TrickleDevice::writeData( const char*, qint64 )
{
    return -1;
}

qint64 TrickleDevice::Below( qint64 a_bound )
{
    return static_cast<qint64>( m_random() ) % a_bound;
}

} // namespace PimManager::Contacts::Checks
