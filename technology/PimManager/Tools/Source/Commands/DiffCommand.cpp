#include "Commands/DiffCommand.h"

#include "Commands/ReadingCommand.h"
#include "Outputs/BookDifference.h"
#include "Outputs/DifferenceJson.h"
#include "Outputs/DifferenceText.h"

namespace PimManager::Tools
{

namespace
{

// What is wrong with the arguments; empty if nothing is.
QString MistakeIn( const CommandLine& a_line )
{
    const QList<QByteArray> books = a_line.Arguments();
    if ( books.size() != 2 )
        return QStringLiteral( "diff compares two books; leave the others out" );
    if ( books.at( 0 ) == "-" && books.at( 1 ) == "-" )
        return QStringLiteral( "standard input cannot be both books; write one of them into a file" );
    if ( a_line.IsSet( s_kFullOption ) && a_line.IsSet( s_kJsonLinesOption ) )
        return QStringLiteral( "--json-lines prints all values whole; leave --full out" );
    return QString();
}

std::unique_ptr<DifferenceWriter> MakeWriter( const CommandLine& a_line, Console& a_console )
{
    if ( a_line.IsSet( s_kJsonLinesOption ) )
        return std::make_unique<DifferenceJson>( a_console.Out() );
    return std::make_unique<DifferenceText>(
        a_console.Out(), a_line.IsSet( s_kFullOption ) ? TextLength::Full : TextLength::Short, a_console.OutScreen() );
}

} // namespace

ExitStatus RunDiff( const CommandLine& a_line, Console& a_console )
{
    const QString mistake = MistakeIn( a_line );
    if ( !mistake.isEmpty() )
        return RefuseUsage( a_console, a_line, mistake );
    return PrintBooks( a_line, a_console, a_line.Arguments(),
                       std::make_unique<BookDifference>( a_console, MakeWriter( a_line, a_console ) ) );
}

} // namespace PimManager::Tools
