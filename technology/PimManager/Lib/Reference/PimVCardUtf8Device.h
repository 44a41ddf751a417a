/// \file
/// The device that the plain scanner's text stream reads from.

#pragma once

#include <QIODevice>

class QByteArray;

namespace PimManager::vCard
{

/// Reads a byte array in blocks that end between UTF-8 sequences.
///
/// A text stream knows its exact position only if its decoder has no incomplete sequence at the end of a block. The
/// blocks are small because the stream decodes its block again, byte by byte, each time its position is requested.
class PimVCardUtf8Device : public QIODevice
{
public:
    /// Opens the device for reading. The caller keeps ownership of the array, which must outlive the device and must
    /// not change.
    explicit PimVCardUtf8Device( const QByteArray* a_data );

    /// \return the length of the array in bytes.
    qint64 size() const override;

protected:
    /// Returns fewer bytes than requested if the block would end inside a sequence. A caller that requests less than
    /// one whole sequence gets part of it.
    qint64 readData( char* a_buffer, qint64 a_maxSize ) override;
    /// Always fails, because the device is read-only.
    qint64 writeData( const char* a_buffer, qint64 a_size ) override;

private:
    qint64 WholeSequences( qint64 a_start, qint64 a_length ) const;

    const QByteArray* m_data;
};

} // namespace PimManager::vCard
