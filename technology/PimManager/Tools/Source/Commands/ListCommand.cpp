#include "Commands/ListCommand.h"

#include "Commands/ReadingCommand.h"
#include "Outputs/BookNotes.h"
#include "Outputs/ContactTable.h"
#include "Outputs/OutputClaims.h"
#include "Reading/ContactRun.h"
#include "Terminal/TerminalSize.h"

#include <unistd.h>

namespace PimManager::Tools
{

ExitStatus RunList( const CommandLine& a_line, Console& a_console )
{
    BookOptions options;
    const QString mistake = ReadBookOptions( a_line, options );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    if ( !OutputClaims( a_console, a_line.Arguments() ).ClaimResults() )
        return ExitStatus::Trouble;
    ContactRun::Outputs outputs;
    outputs.push_back( std::make_unique<ContactTable>( a_console.Out(), TerminalColumns( STDOUT_FILENO ) ) );
    outputs.push_back( std::make_unique<BookNotes>( a_console ) );
    return ContactRun( a_console, options, std::move( outputs ), BookRun::WithoutReader::Stop )
        .Run( a_line.Arguments() );
}

} // namespace PimManager::Tools
