/// \file
/// Reads a device piece by piece.

#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QIODevice>
#include <QString>

namespace PimManager::PhoneBook
{

enum class PieceState
{
    Data,
    /// There is no data now.
    Waiting,
    End,
    Failed,
};

/// The pieces of a device from its present position to its end.
class DevicePieces
{
public:
    /// \param a_device   open for reading; must outlive the object.
    /// \param a_mostIdle the milliseconds without data after which a sequential device has failed.
    explicit DevicePieces( QIODevice& a_device, qint64 a_mostIdle = 30000 );
    ~DevicePieces();
    Q_DISABLE_COPY( DevicePieces )

    /// The number of bytes up to the end. -1 if it is not known.
    qint64 Size() const;

    /// Reads the next piece. Waits for data, but not long.
    PieceState Next();
    /// The piece that was read. Valid until the next call.
    const QByteArray& Piece() const { return m_piece; }
    /// The text of the error after Failed.
    QString ErrorText() const { return m_errorText; }

private:
    PieceState StateWithoutData( qint64 a_length );
    PieceState Wait();
    PieceState Fail( const QString& a_text );

    QIODevice& m_device;
    const qint64 m_mostIdle;
    QMetaObject::Connection m_connection;
    bool m_isFinished = false;
    QByteArray m_piece;
    QString m_errorText;
    QElapsedTimer m_idle;
};

} // namespace PimManager::PhoneBook
