#include "Terminal/TerminalSize.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace PimManager::Tools
{

int TerminalColumns( int a_descriptor )
{
    constexpr int s_kUsual = 80;
    if ( ::isatty( a_descriptor ) == 0 )
        return 0;
    winsize size = {};
    const bool isTold = ::ioctl( a_descriptor, TIOCGWINSZ, &size ) == 0 && size.ws_col > 0;
    return isTold ? size.ws_col : s_kUsual;
}

} // namespace PimManager::Tools
