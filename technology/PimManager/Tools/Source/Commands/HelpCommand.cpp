#include "Commands/HelpCommand.h"

#include "Commands/Suggestion.h"
#include "Terminal/TerminalText.h"

namespace PimManager::Tools
{

namespace
{

constexpr int s_kWidth = 17;

QString Row( const QString& a_name, const QString& a_text )
{
    return QStringLiteral( "  " ) + a_name.leftJustified( s_kWidth ) + a_text + QLatin1Char( '\n' );
}

} // namespace

QString OverviewText()
{
    QString text = QStringLiteral( "Usage: pimvcard [COMMAND] [options] BOOK...\n"
                                   "Reads the address books that phones and mail programs write (vCard).\n"
                                   "\nCommands:\n" );
    for ( const CommandInfo& command : Commands() )
        text += Row( command.m_name, command.m_summary );
    text += QStringLiteral( "\nWithout a command, the contacts are listed. As BOOK, - is standard input.\n"
                            "\nOptions of all commands:\n" );
    for ( const OptionInfo& option : CommonOptions() )
        text += Row( QStringLiteral( "-%1, --%2" ).arg( option.m_letter, option.m_name ), option.m_help );
    return text + QStringLiteral( "\n\"pimvcard help COMMAND\" shows the options of a command.\n" );
}

ExitStatus RunHelp( const CommandLine& a_line, Console& a_console )
{
    const QList<QByteArray> words = a_line.Arguments();
    if ( words.isEmpty() )
        return a_console.Show( OverviewText() );
    const CommandInfo* const command = FindCommand( words.first() );
    return command == nullptr ? RefuseCommand( words.first(), a_console )
                              : a_console.Show( CommandLine( *command ).HelpText() );
}

ExitStatus RefuseCommand( const QByteArray& a_word, Console& a_console )
{
    QStringList names;
    for ( const CommandInfo& command : Commands() )
        names << command.m_name;
    return a_console.Refuse( QStringLiteral( "%1 is neither a command nor a file.%2" )
                                 .arg( ToShownFileName( a_word ), SuggestionFor( QString::fromUtf8( a_word ), names ) ),
                             QStringLiteral( "pimvcard" ) );
}

} // namespace PimManager::Tools
