/// \file
/// A device like a socket that delivers little at a time.

#pragma once

#include <QByteArray>
#include <QIODevice>

#include <random>

namespace PimManager::Contacts::Checks
{

/// A sequential device. Reading returns a random part of what has arrived, often nothing. When the last byte has
/// arrived, the next Arrive() finishes the read channel, and reading returns -1, as a closed socket does.
///
/// \code
/// TrickleDevice device( bytes, 1 );
/// device.open( QIODevice::ReadOnly );
/// while ( reader.Next( device, card ) == PimContactNext::Waiting && device.Arrive() ) {}
/// \endcode
class TrickleDevice : public QIODevice
{
public:
    /// \param a_most the largest number of bytes that arrive at once; at least 1.
    TrickleDevice( const QByteArray& a_bytes, unsigned a_seed, int a_most = 40 );

    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;
    bool waitForReadyRead( int a_milliseconds ) override;

    /// Lets more bytes arrive, or finishes the read channel. \return false if it was finished before.
    bool Arrive();

protected:
    qint64 readData( char* a_bytes, qint64 a_size ) override;
    qint64 writeData( const char* a_bytes, qint64 a_size ) override;

private:
    qint64 Below( qint64 a_bound );

    QByteArray m_bytes;
    std::minstd_rand m_random;
    qint64 m_most;
    qint64 m_arrived = 0;
    qint64 m_read = 0;
    bool m_isFinished = false;
};

} // namespace PimManager::Contacts::Checks
