#include "Program.h"

#include "Commands/CheckCommand.h"
#include "Commands/CommandLine.h"
#include "Commands/ConvertCommand.h"
#include "Commands/DiffCommand.h"
#include "Commands/FindCommand.h"
#include "Commands/HelpCommand.h"
#include "Commands/ListCommand.h"
#include "Commands/ReadingCommand.h"
#include "Commands/ShowCommand.h"
#include "Commands/Version.h"
#include "Commands/WhoCommand.h"

#include <algorithm>
#include <array>
#include <sys/stat.h>

namespace PimManager::Tools
{

namespace
{

using Run = ExitStatus ( * )( const CommandLine&, Console& );

struct Reading
{
    const char* m_command;
    Run m_run;
};

constexpr std::array s_kReadings = {
    Reading{ "list", RunList },       Reading{ "show", RunShow }, Reading{ "find", RunFind },
    Reading{ "who", RunWho },         Reading{ "diff", RunDiff }, Reading{ "check", RunCheck },
    Reading{ "convert", RunConvert },
};

const QString s_kProgram = QStringLiteral( "pimvcard" );

bool IsNamed( const OptionInfo& a_option, const QByteArray& a_argument )
{
    if ( a_argument.startsWith( "--" ) )
        return a_argument == "--" + a_option.m_name.toLatin1();
    return !a_option.m_letter.isEmpty() && a_argument.endsWith( a_option.m_letter.toLatin1() );
}

// True for an option of any command whose value is the next argument.
bool WantsNext( const QByteArray& a_argument )
{
    const auto isIt = [&a_argument]( const OptionInfo& a_option )
    { return !a_option.m_argument.isEmpty() && IsNamed( a_option, a_argument ); };
    return std::any_of( Commands().begin(), Commands().end(),
                        [&isIt]( const CommandInfo& a_command )
                        { return std::any_of( a_command.m_options.begin(), a_command.m_options.end(), isIt ); } );
}

// The place of the first argument that is no option; the end if there is none.
int FindWord( const QList<QByteArray>& a_arguments )
{
    int place = 0;
    for ( ; place < a_arguments.size(); ++place )
    {
        const QByteArray& argument = a_arguments.at( place );
        if ( argument == "--" )
            return place + 1;
        if ( argument == "-" || !argument.startsWith( '-' ) )
            return place;
        place += WantsNext( argument ) ? 1 : 0;
    }
    // The value of the last option may be missing.
    return std::min( place, static_cast<int>( a_arguments.size() ) );
}

// Looks like the name of a command, and is no file.
bool IsUnknownCommand( const QByteArray& a_word )
{
    struct stat status = {};
    const bool isPlain = !a_word.contains( '.' ) && !a_word.contains( '/' ) && a_word != "-";
    return isPlain && ::stat( a_word.constData(), &status ) != 0;
}

// What to write instead, if there are too few arguments; empty if there are enough.
QString MissingArguments( const CommandLine& a_line )
{
    const CommandInfo& command = a_line.Command();
    const auto least = command.m_arguments.split( QLatin1Char( ' ' ) ).size();
    if ( a_line.Arguments().size() >= least )
        return QString();
    if ( least == 1 )
        return QStringLiteral( "no file to %1; - is standard input" ).arg( command.m_name );
    return QStringLiteral( "too few arguments; write \"pimvcard %1 %2\"" ).arg( command.m_name, command.m_arguments );
}

ExitStatus RunCommand( const CommandLine& a_line, Console& a_console )
{
    if ( a_line.IsSet( s_kHelpOption ) )
        return a_console.Show( CommandText( a_line.Command(), a_console.OutScreen() ) );
    if ( a_line.IsSet( s_kVersionOption ) )
        return a_console.Show( VersionText() );
    a_console.SetRemarksWanted( !a_line.IsSet( s_kQuietOption ) );
    const auto* const reading =
        std::find_if( s_kReadings.begin(), s_kReadings.end(),
                      [&a_line]( const Reading& a_reading )
                      { return a_line.Command().m_name == QLatin1String( a_reading.m_command ); } );
    if ( reading == s_kReadings.end() )
        return RunHelp( a_line, a_console );
    const QString missing = MissingArguments( a_line );
    if ( !missing.isEmpty() )
        return RefuseUsage( a_console, a_line, missing );
    return reading->m_run( a_line, a_console );
}

// Without a command and without a file: help, version, or a mistake.
ExitStatus RunNothing( const CommandLine& a_line, Console& a_console )
{
    if ( a_line.IsSet( s_kHelpOption ) )
        return a_console.Show( OverviewText( a_console.OutScreen() ) );
    if ( a_line.IsSet( s_kVersionOption ) )
        return a_console.Show( VersionText() );
    return a_console.Refuse( QStringLiteral( "no command and no file; \"pimvcard BOOK\" lists an address book" ),
                             s_kProgram );
}

} // namespace

ExitStatus RunProgram( const QList<QByteArray>& a_arguments, Console& a_console )
{
    QList<QByteArray> arguments = a_arguments;
    const int place = FindWord( arguments );
    const QByteArray word = arguments.value( place );
    const bool hasWord = place < arguments.size();
    const bool isBehindDashes = place > 0 && arguments.at( place - 1 ) == "--";
    const CommandInfo* const command = hasWord && !isBehindDashes ? FindCommand( word ) : nullptr;
    if ( command != nullptr )
        arguments.removeAt( place );
    else if ( hasWord && !isBehindDashes && IsUnknownCommand( word ) )
        return RefuseCommand( word, a_console );
    CommandLine line( command != nullptr ? *command : Commands().front() );
    if ( !line.Parse( arguments ) )
        return command != nullptr ? RefuseUsage( a_console, line, line.ErrorText() )
                                  : a_console.Refuse( line.ErrorText(), s_kProgram );
    return hasWord ? RunCommand( line, a_console ) : RunNothing( line, a_console );
}

} // namespace PimManager::Tools
