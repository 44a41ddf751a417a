#include "Commands/CompletedValue.h"

namespace PimManager::Tools
{

CompletedValue CompletedValueOf( const OptionInfo& a_option )
{
    if ( a_option.m_argument.isEmpty() )
        return CompletedValue::None;
    if ( !a_option.m_words.isEmpty() )
        return CompletedValue::Words;
    if ( a_option.m_argument == QLatin1String( "FILE" ) )
        return CompletedValue::File;
    return a_option.m_argument == QLatin1String( "DIR" ) ? CompletedValue::Folder : CompletedValue::Other;
}

bool IsArgumentCommand( const CommandInfo& a_command )
{
    return a_command.m_arguments.contains( QLatin1String( "COMMAND" ) );
}

} // namespace PimManager::Tools
