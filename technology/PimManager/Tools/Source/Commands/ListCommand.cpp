#include "Commands/ListCommand.h"

#include "Commands/ReadingCommand.h"
#include "Outputs/ContactTable.h"

namespace PimManager::Tools
{

ExitStatus RunList( const CommandLine& a_line, Console& a_console )
{
    return PrintBooks( a_line, a_console, a_line.Arguments(),
                       std::make_unique<ContactTable>( a_console.Out(), a_console.OutScreen(), a_line.Arguments() ) );
}

} // namespace PimManager::Tools
