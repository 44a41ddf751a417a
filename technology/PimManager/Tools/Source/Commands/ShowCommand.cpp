#include "Commands/ShowCommand.h"

#include "Commands/ReadingCommand.h"
#include "Outputs/ContactText.h"

namespace PimManager::Tools
{

ExitStatus RunShow( const CommandLine& a_line, Console& a_console )
{
    const auto length = a_line.IsSet( s_kFullOption ) ? ContactText::Length::Full : ContactText::Length::Short;
    return PrintBooks( a_line, a_console, a_line.Arguments(),
                       std::make_unique<ContactText>( a_console.Out(), length, a_console.OutScreen() ) );
}

} // namespace PimManager::Tools
