#include "Commands/ListCommand.h"

#include "Commands/ReadingCommand.h"
#include "Outputs/ContactTable.h"
#include "Terminal/TerminalSize.h"

#include <unistd.h>

namespace PimManager::Tools
{

ExitStatus RunList( const CommandLine& a_line, Console& a_console )
{
    return PrintBooks( a_line, a_console,
                       std::make_unique<ContactTable>( a_console.Out(), TerminalColumns( STDOUT_FILENO ) ) );
}

} // namespace PimManager::Tools
