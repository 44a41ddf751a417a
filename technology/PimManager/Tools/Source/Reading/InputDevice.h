/// \file
/// The program's way in: files, pipes and standard input, read piece by piece.

#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <functional>

namespace PimManager::Tools
{

/// Reads the bytes of one file in order, without a buffer of its own. The end of the file, a failure and Ctrl-C (see
/// Interrupt) all end the bytes; Error() and Interrupt::IsRequested() tell them apart.
class InputDevice : public QIODevice
{
public:
    /// Opens the file. A folder is an error.
    /// \param a_fileName the name as the system takes it; `-` is standard input, which is left open afterwards.
    explicit InputDevice( const QByteArray& a_fileName );
    ~InputDevice() override;
    Q_DISABLE_COPY( InputDevice )

    bool isSequential() const override { return true; }

    /// \return false until a read has met the end of the bytes.
    bool atEnd() const override { return m_isAtEnd; }

    /// \return the system's number for what went wrong when opening or reading; 0 while all is well.
    int Error() const { return m_error; }

    /// \return Error() in a few words, safe for a terminal.
    QString Reason() const;

    /// \return the bytes of a regular file; 0 when they cannot be told beforehand.
    qint64 FileSize() const { return m_size; }

    /// \return the bytes read so far.
    qint64 BytesRead() const { return m_bytesRead; }

    /// Calls this after each read.
    void SetReadHandler( const std::function<void()>& a_handler ) { m_readHandler = a_handler; }

protected:
    qint64 readData( char* a_data, qint64 a_size ) override;
    qint64 writeData( const char* a_data, qint64 a_size ) override;

private:
    void Examine();
    qint64 Fail( int a_error );

    const bool m_isStandardInput;
    const int m_descriptor;
    int m_error = 0;
    bool m_isAtEnd = false;
    qint64 m_size = 0;
    qint64 m_bytesRead = 0;
    std::function<void()> m_readHandler;
};

} // namespace PimManager::Tools
