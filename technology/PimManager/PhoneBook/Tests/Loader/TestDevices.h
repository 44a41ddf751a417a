/// \file
/// Devices that behave in a certain way.

#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QThread>

#include <cstring>
#include <stdexcept>

namespace PimManager::PhoneBook
{

/// How a device ends.
enum class TestEnd
{
    Finishes, ///< emits readChannelFinished()
    Closes,
    Fails,
    Breaks, ///< fails and closes
    Throws,
    IsSilent, ///< sends nothing, and waits for more
    Hangs,    ///< does not return
    IsEndless ///< begins again
};

/// A device with some bytes, such as a connection to a telephone.
class TestDevice : public QIODevice
{
public:
    TestDevice( const QByteArray& a_bytes, TestEnd a_end, bool a_isSequential = true, qint64 a_pieceBytes = 1000 ) :
        m_bytes( a_bytes ),
        m_end( a_end ),
        m_isSequential( a_isSequential ),
        m_pieceBytes( a_pieceBytes )
    {
        open( QIODevice::ReadOnly | QIODevice::Unbuffered );
    }

    bool isSequential() const override { return m_isSequential; }
    qint64 size() const override { return m_isSequential ? QIODevice::size() : m_bytes.size(); }
    bool waitForReadyRead( int ) override { return false; }

protected:
    qint64 readData( char* a_data, qint64 a_size ) override
    {
        if ( m_end == TestEnd::IsEndless && m_position == m_bytes.size() )
            m_position = 0;
        const qint64 size = qMin( qMin( a_size, m_pieceBytes ), m_bytes.size() - m_position );
        if ( size == 0 )
            return AtEnd();
        std::memcpy( a_data, m_bytes.constData() + m_position, static_cast<size_t>( size ) );
        m_position += size;
        return size;
    }
    qint64 writeData( const char*, qint64 ) override { return -1; }

private:
    qint64 AtEnd()
    {
        while ( m_end == TestEnd::Hangs )
            QThread::sleep( 1 );
        if ( m_end == TestEnd::Throws )
            throw std::runtime_error( "thrown by the device" );
        if ( m_end == TestEnd::Finishes )
            emit readChannelFinished();
        if ( m_end == TestEnd::Closes || m_end == TestEnd::Breaks )
            close();
        const bool isError = m_end == TestEnd::Fails || m_end == TestEnd::Breaks;
        if ( isError )
            setErrorString( QStringLiteral( "the stick was pulled out" ) );
        return isError ? -1 : 0;
    }

    const QByteArray m_bytes;
    const TestEnd m_end;
    const bool m_isSequential;
    const qint64 m_pieceBytes;
    qint64 m_position = 0;
};

} // namespace PimManager::PhoneBook
