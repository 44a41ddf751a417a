/// \file
/// Looks at the start of a device before the device is read.
///
/// \code
/// ReplayedDevice book( input );
/// const bool isCompressed = book.HoldBack( 2 ) == "\x1F\x8B";
/// reader.Next( book, card ); // reads the input from its first byte
/// \endcode

#pragma once

#include <QByteArray>
#include <QIODevice>

namespace PimManager::Tools
{

/// Reads another device, the source, and can look ahead: a pipe cannot be read twice. All bytes of the source are read
/// from this device, in their order. It ends and fails when the source does.
class ReplayedDevice : public QIODevice
{
public:
    /// \param a_source open for reading; must outlive this device, and must not be read otherwise.
    explicit ReplayedDevice( QIODevice& a_source );
    Q_DISABLE_COPY( ReplayedDevice )

    /// Reads the start of the source and keeps it until it is read from this device. Waits for it if necessary. May be
    /// called again for more, but not after the first read.
    /// \return the first bytes, fewer than \a a_size only if the source ends or fails before. Valid until the first
    ///         read.
    const QByteArray& HoldBack( qint64 a_size );

    bool isSequential() const override { return true; }
    /// \return true if the held bytes have been read and the source is at its end.
    bool atEnd() const override;
    qint64 bytesAvailable() const override;
    bool waitForReadyRead( int a_milliseconds ) override;

protected:
    qint64 readData( char* a_data, qint64 a_size ) override;
    qint64 writeData( const char* a_data, qint64 a_size ) override;

private:
    bool HasHeldBytes() const { return m_place < m_held.size(); }
    bool TakeFromSource( qint64 a_size );
    qint64 ReadSource( char* a_data, qint64 a_size );

    QIODevice& m_source;
    QByteArray m_held;
    qint64 m_place = 0;
    // The source has emitted readChannelFinished().
    bool m_isFinished = false;
    bool m_isEndReported = false;
};

} // namespace PimManager::Tools
