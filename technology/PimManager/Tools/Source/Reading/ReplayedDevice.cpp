#include "Reading/ReplayedDevice.h"

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

constexpr qint64 s_kBlock = 1 << 16;
constexpr int s_kForEver = -1;

} // namespace

ReplayedDevice::ReplayedDevice( QIODevice& a_source ) :
    m_source( a_source )
{
    connect( &a_source, &QIODevice::readyRead, this, &QIODevice::readyRead );
    connect( &a_source, &QIODevice::readChannelFinished, this, [this] { m_isFinished = true; } );
    connect( &a_source, &QIODevice::readChannelFinished, this, &QIODevice::readChannelFinished );
    open( QIODevice::ReadOnly | QIODevice::Unbuffered );
}

const QByteArray& ReplayedDevice::HoldBack( qint64 a_size )
{
    while ( m_held.size() < a_size && TakeFromSource( a_size - m_held.size() ) )
    {
    }
    return m_held;
}

bool ReplayedDevice::atEnd() const
{
    return !HasHeldBytes() && m_source.atEnd();
}

qint64 ReplayedDevice::bytesAvailable() const
{
    return QIODevice::bytesAvailable() + m_held.size() - m_place + m_source.bytesAvailable();
}

bool ReplayedDevice::waitForReadyRead( int a_milliseconds )
{
    return HasHeldBytes() || m_source.waitForReadyRead( a_milliseconds );
}

qint64 ReplayedDevice::readData( char* a_data, qint64 a_size )
{
    if ( !HasHeldBytes() )
        return ReadSource( a_data, a_size );
    const qint64 count = std::min<qint64>( a_size, m_held.size() - m_place );
    std::copy_n( m_held.constData() + m_place, count, a_data );
    m_place += count;
    return count;
}

qint64 ReplayedDevice::writeData( const char* /*a_data*/, qint64 /*a_size*/ )
{
    return -1;
}

// \return false if the source has no more bytes.
bool ReplayedDevice::TakeFromSource( qint64 a_size )
{
    const QByteArray piece = m_source.read( std::min( a_size, s_kBlock ) );
    m_held += piece;
    return !piece.isEmpty() || m_source.waitForReadyRead( s_kForEver );
}

qint64 ReplayedDevice::ReadSource( char* a_data, qint64 a_size )
{
    m_held.clear();
    m_place = 0;
    const qint64 count = m_source.read( a_data, a_size );
    if ( count < 0 )
        setErrorString( m_source.errorString() );
    // A sequential device reports its end by a signal. That of the source was too early, or there was none.
    const bool isEnd = count <= 0 && a_size > 0 && ( m_isFinished || ( count == 0 && !m_source.isSequential() ) );
    if ( !isEnd )
        return count;
    if ( !m_isEndReported )
        emit readChannelFinished();
    m_isEndReported = true;
    return -1;
}

} // namespace PimManager::Tools
