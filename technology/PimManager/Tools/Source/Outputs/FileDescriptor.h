/// \file
/// File descriptors that close themselves.

#pragma once

#include <QtGlobal>

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace PimManager::Tools
{

/// Owns a file descriptor.
class FileDescriptor
{
public:
    /// \param a_descriptor -1 for none.
    explicit FileDescriptor( int a_descriptor = -1 ) :
        m_descriptor( a_descriptor )
    {
    }
    FileDescriptor( FileDescriptor&& a_other ) noexcept :
        m_descriptor( std::exchange( a_other.m_descriptor, -1 ) )
    {
    }
    FileDescriptor& operator=( FileDescriptor&& a_other ) noexcept
    {
        std::swap( m_descriptor, a_other.m_descriptor );
        return *this;
    }
    ~FileDescriptor() { Close(); }
    Q_DISABLE_COPY( FileDescriptor )

    bool IsOpen() const { return m_descriptor >= 0; }
    int Number() const { return m_descriptor; }

    /// \return 0, or the system's number (errno) for the failure.
    int Close()
    {
        const int descriptor = std::exchange( m_descriptor, -1 );
        return descriptor < 0 || ::close( descriptor ) == 0 ? 0 : errno;
    }

private:
    int m_descriptor;
};

} // namespace PimManager::Tools
