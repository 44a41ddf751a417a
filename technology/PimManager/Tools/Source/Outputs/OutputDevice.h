/// \file
/// The program's way out: standard output and standard error.

#pragma once

#include <QByteArray>
#include <QIODevice>

#include <functional>

namespace PimManager::Tools
{

/// Writes bytes to a file descriptor through a buffer, and remembers why that failed.
///
/// After a failure everything that is written is dropped, so a caller may go on and ask once in a while.
class OutputDevice : public QIODevice
{
public:
    /// Opens the device for writing.
    /// \param a_descriptor stays the caller's.
    explicit OutputDevice( int a_descriptor );

    /// Flushes.
    ~OutputDevice() override;
    Q_DISABLE_COPY( OutputDevice )

    bool isSequential() const override { return true; }

    /// Calls this before bytes go to the system, so that what else stands on the same terminal can make room.
    void SetSendHandler( const std::function<void()>& a_handler ) { m_sendHandler = a_handler; }

    /// Hands all that was written to the system.
    void Flush();

    /// \return the system's number for the first failure, such as `EPIPE` or `ENOSPC`; 0 while all is well.
    int Error() const { return m_error; }

protected:
    qint64 readData( char* a_data, qint64 a_size ) override;
    qint64 writeData( const char* a_data, qint64 a_size ) override;

private:
    void Send( const char* a_data, qint64 a_size );

    const int m_descriptor;
    int m_error = 0;
    QByteArray m_buffer;
    std::function<void()> m_sendHandler;
};

} // namespace PimManager::Tools
