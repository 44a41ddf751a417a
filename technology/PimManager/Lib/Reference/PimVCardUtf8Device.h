/// \file
/// The device under the plain scanner's text stream.

#pragma once

#include <QIODevice>

class QByteArray;

namespace PimManager::vCard
{

/// Reads a byte array in blocks that end between UTF-8 sequences.
///
/// A text stream tells its position exactly only when its decoder holds no half sequence at a block's end. The blocks
/// are small because the stream decodes its block anew, byte by byte, whenever it is asked for its position.
class PimVCardUtf8Device : public QIODevice
{
public:
    /// Opens the device for reading. The array is not taken over, must outlive the device and must not change.
    explicit PimVCardUtf8Device( const QByteArray* a_data );

    /// \return the length of the array in bytes.
    qint64 size() const override;

protected:
    /// Gives fewer bytes than asked for when the block would end inside a sequence; a caller that asks for less than
    /// one whole sequence gets part of it.
    qint64 readData( char* a_buffer, qint64 a_maxSize ) override;
    /// Refuses: the device is for reading only.
    qint64 writeData( const char* a_buffer, qint64 a_size ) override;

private:
    qint64 WholeSequences( qint64 a_start, qint64 a_length ) const;

    const QByteArray* m_data;
};

} // namespace PimManager::vCard
