#include "Program.h"

#include "CheckCommand.h"
#include "CommandLine.h"
#include "ImportCommand.h"
#include "PrintCommand.h"
#include "TerminalText.h"
#include "Version.h"

#include <QString>

#include <algorithm>

namespace PimManager::vCard::Tools
{

namespace
{

const QString s_kProgram = QStringLiteral( "pimvcard" );

bool IsOption( const QByteArray& a_argument )
{
    return a_argument.startsWith( '-' );
}

// Without a command: help, version, or a mistake.
ExitStatus RunWithoutCommand( const QList<QByteArray>& a_arguments, Console& a_console )
{
    CommandLine line( QStringLiteral( "Reads the address books that phones and mail programs write (vCard)." ) );
    line.AddArgument( QStringLiteral( "import" ), ImportCommand::Summary(), QStringLiteral( "import" ) );
    line.AddArgument( QStringLiteral( "check" ), CheckCommand::Summary(), QStringLiteral( "| check" ) );
    line.AddArgument( QStringLiteral( "print" ),
                      PrintCommand::Summary() + QStringLiteral( " \"pimvcard COMMAND --help\" shows more." ),
                      QStringLiteral( "| print FILE..." ) );
    if ( !line.Parse( a_arguments ) )
        return a_console.Refuse( line.ErrorText(), s_kProgram );
    if ( line.WantsHelp() )
        return a_console.Show( line.HelpText() );
    if ( line.WantsVersion() )
        return a_console.Show( VersionText() );
    return a_console.Refuse( QStringLiteral( "no command" ), s_kProgram );
}

ExitStatus RunCommand( const QByteArray& a_command, const QList<QByteArray>& a_arguments, Console& a_console )
{
    if ( a_command == "import" )
        return ImportCommand( a_console ).Run( a_arguments );
    if ( a_command == "check" )
        return CheckCommand( a_console ).Run( a_arguments );
    if ( a_command == "print" )
        return PrintCommand( a_console ).Run( a_arguments );
    return a_console.Refuse( QStringLiteral( "unknown command: " ) + ToShownFileName( a_command ), s_kProgram );
}

} // namespace

ExitStatus RunProgram( const QList<QByteArray>& a_arguments, Console& a_console )
{
    QList<QByteArray> arguments = a_arguments;
    const auto command = std::find_if_not( arguments.begin(), arguments.end(), IsOption );
    if ( command == arguments.end() )
        return RunWithoutCommand( arguments, a_console );
    const QByteArray name = *command;
    arguments.erase( command );
    return RunCommand( name, arguments, a_console );
}

} // namespace PimManager::vCard::Tools
