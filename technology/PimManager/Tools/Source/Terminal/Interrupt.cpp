#include "Terminal/Interrupt.h"

#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace PimManager::Tools
{

volatile std::sig_atomic_t Interrupt::sm_isRequested = 0;
volatile std::sig_atomic_t Interrupt::sm_descriptor = -1;
struct sigaction Interrupt::sm_former = {};

Interrupt::Interrupt()
{
    sm_isRequested = 0;
    sm_descriptor = ::eventfd( 0, EFD_CLOEXEC | EFD_NONBLOCK );
    ::sigaction( SIGINT, nullptr, &sm_former );
    if ( sm_former.sa_handler == SIG_IGN )
        return;
    struct sigaction caught = {};
    caught.sa_handler = Handle;
    ::sigaction( SIGINT, &caught, nullptr );
}

Interrupt::~Interrupt()
{
    ::sigaction( SIGINT, &sm_former, nullptr );
    ::close( sm_descriptor );
    sm_descriptor = -1;
}

void Interrupt::Handle( int /*a_signal*/ )
{
    const int error = errno;
    ::sigaction( SIGINT, &sm_former, nullptr );
    sm_isRequested = 1;
    const std::uint64_t one = 1;
    // Wakes a poll() that began just before the signal. Should it fail, the flag is still seen at the next read.
    [[maybe_unused]] const ssize_t written = ::write( sm_descriptor, &one, sizeof one );
    errno = error;
}

} // namespace PimManager::Tools
