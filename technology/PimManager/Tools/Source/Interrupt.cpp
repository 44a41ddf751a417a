#include "Interrupt.h"

#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace PimManager::vCard::Tools
{

volatile std::sig_atomic_t Interrupt::sm_isRequested = 0;
volatile std::sig_atomic_t Interrupt::sm_descriptor = -1;

Interrupt::Interrupt()
{
    sm_isRequested = 0;
    sm_descriptor = ::eventfd( 0, EFD_CLOEXEC | EFD_NONBLOCK );
    ::sigaction( SIGINT, nullptr, &m_former );
    if ( m_former.sa_handler == SIG_IGN )
        return;
    struct sigaction caught = {};
    caught.sa_handler = Handle;
    caught.sa_flags = static_cast<int>( SA_RESETHAND );
    ::sigaction( SIGINT, &caught, nullptr );
}

Interrupt::~Interrupt()
{
    ::sigaction( SIGINT, &m_former, nullptr );
    ::close( sm_descriptor );
    sm_descriptor = -1;
}

void Interrupt::Handle( int /*a_signal*/ )
{
    const int error = errno;
    sm_isRequested = 1;
    const std::uint64_t one = 1;
    // Wakes a poll() that began just before the signal. Should it fail, the flag is still seen at the next read.
    [[maybe_unused]] const ssize_t written = ::write( sm_descriptor, &one, sizeof one );
    errno = error;
}

} // namespace PimManager::vCard::Tools
