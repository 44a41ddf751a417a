#include "Commands/ShowCommand.h"

#include "Commands/ReadingCommand.h"
#include "Outputs/BookNotes.h"
#include "Outputs/ContactText.h"
#include "Outputs/OutputClaims.h"
#include "Reading/ContactRun.h"
#include "Terminal/TerminalSize.h"

#include <unistd.h>

namespace PimManager::Tools
{

ExitStatus RunShow( const CommandLine& a_line, Console& a_console )
{
    BookOptions options;
    const QString mistake = ReadBookOptions( a_line, options );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    if ( !OutputClaims( a_console, a_line.Arguments() ).ClaimResults() )
        return ExitStatus::Trouble;
    const auto length = a_line.IsSet( s_kFullOption ) ? ContactText::Length::Full : ContactText::Length::Short;
    ContactRun::Outputs outputs;
    outputs.push_back( std::make_unique<ContactText>( a_console.Out(), length, TerminalColumns( STDOUT_FILENO ) ) );
    outputs.push_back( std::make_unique<BookNotes>( a_console ) );
    return ContactRun( a_console, options, std::move( outputs ), BookRun::WithoutReader::Stop )
        .Run( a_line.Arguments() );
}

} // namespace PimManager::Tools
