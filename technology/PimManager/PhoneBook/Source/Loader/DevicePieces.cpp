#include "Loader/DevicePieces.h"

#include <QFileDevice>
#include <QThread>

namespace PimManager::PhoneBook
{

namespace
{

constexpr int s_kPieceBytes = 64 * 1024;
constexpr int s_kWaitMilliseconds = 50;

} // namespace

DevicePieces::DevicePieces( QIODevice& a_device, qint64 a_mostIdle ) :
    m_device( a_device ),
    m_mostIdle( a_mostIdle ),
    m_connection( QObject::connect( &a_device, &QIODevice::readChannelFinished, [this] { m_isFinished = true; } ) )
{
    m_idle.start();
}

DevicePieces::~DevicePieces()
{
    QObject::disconnect( m_connection );
}

qint64 DevicePieces::Size() const
{
    return m_device.isSequential() ? -1 : m_device.size() - m_device.pos();
}

PieceState DevicePieces::Next()
{
    m_piece.resize( s_kPieceBytes );
    const qint64 length = m_device.isReadable() ? m_device.read( m_piece.data(), s_kPieceBytes ) : 0;
    m_piece.resize( static_cast<int>( qMax<qint64>( length, 0 ) ) );
    if ( length <= 0 )
        return StateWithoutData( length );
    m_idle.start();
    return PieceState::Data;
}

// A file is at its end when nothing can be read, even if it is a pipe; a file that is closed could not be opened. A
// connection may close while it is read.
PieceState DevicePieces::StateWithoutData( qint64 a_length )
{
    const bool isStream = m_device.isSequential() && qobject_cast<QFileDevice*>( &m_device ) == nullptr;
    const bool isWithoutError = a_length == 0;
    const bool isClosed = !m_device.isReadable();
    if ( isStream ? m_isFinished || ( isWithoutError && isClosed ) : isWithoutError && !isClosed )
        return PieceState::End;
    return isStream && isWithoutError ? Wait() : Fail( m_device.errorString() );
}

// A device that cannot wait returns at once.
PieceState DevicePieces::Wait()
{
    if ( m_idle.elapsed() > m_mostIdle )
        return Fail( QStringLiteral( "the device sent no more data" ) );
    QElapsedTimer waiting;
    waiting.start();
    if ( !m_device.waitForReadyRead( s_kWaitMilliseconds ) )
        QThread::msleep( static_cast<unsigned long>( qMax<qint64>( s_kWaitMilliseconds - waiting.elapsed(), 0 ) ) );
    return PieceState::Waiting;
}

PieceState DevicePieces::Fail( const QString& a_text )
{
    m_errorText = a_text;
    return PieceState::Failed;
}

} // namespace PimManager::PhoneBook
