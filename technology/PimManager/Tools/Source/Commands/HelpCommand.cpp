#include "Commands/HelpCommand.h"

#include "Commands/HelpText.h"
#include "Commands/Suggestion.h"
#include "Terminal/TerminalText.h"

#include <QRegularExpression>

namespace PimManager::Tools
{

namespace
{

using Rows = QList<HelpText::Row>;

void AddOptions( const std::vector<OptionInfo>& a_options, Rows& a_rows )
{
    for ( const OptionInfo& option : a_options )
    {
        QString name = option.m_letter.isEmpty() ? QString() : QStringLiteral( "-%1, " ).arg( option.m_letter );
        name += QStringLiteral( "--" ) + option.m_name;
        if ( !option.m_argument.isEmpty() )
            name += QStringLiteral( " <%1>" ).arg( option.m_argument );
        a_rows << HelpText::Row{ name, option.m_help };
    }
}

// A row for each argument: `BOOK` for `BOOK...`, and `COMMAND` for `[COMMAND]`.
Rows ArgumentRows( const CommandInfo& a_command )
{
    static const QRegularExpression s_kMarks( QStringLiteral( "[].[]" ) );
    Rows rows;
    const QStringList names = QString( a_command.m_arguments ).remove( s_kMarks ).split( QLatin1Char( ' ' ) );
    for ( int i = 0; i < names.size(); ++i )
        rows << HelpText::Row{ names.at( i ), a_command.m_argumentsHelp.value( i ) };
    return rows;
}

} // namespace

QString OverviewText( const Screen& a_screen )
{
    HelpText text( a_screen );
    text.AddText( QStringLiteral( "Usage: pimvcard [COMMAND] [options] BOOK...\n"
                                  "Reads the address books that phones and mail programs write (vCard).\n"
                                  "\nCommands:" ) );
    Rows commands;
    for ( const CommandInfo& command : Commands() )
        commands << HelpText::Row{ command.m_name, command.m_summary };
    text.AddRows( commands );
    text.AddText( QStringLiteral( "\nWithout a command, the contacts are listed. As BOOK, - is standard input.\n"
                                  "\nOptions of all commands:" ) );
    Rows options;
    AddOptions( CommonOptions(), options );
    text.AddRows( options );
    text.AddText( QStringLiteral( "\n\"pimvcard help COMMAND\" shows the options of a command." ) );
    return text.Text();
}

QString CommandText( const CommandInfo& a_command, const Screen& a_screen )
{
    HelpText text( a_screen );
    text.AddText( QStringLiteral( "Usage: pimvcard [options] %1 %2\n%3\n\nOptions:" )
                      .arg( a_command.m_name, a_command.m_arguments, a_command.m_summary ) );
    Rows options;
    AddOptions( a_command.m_options, options );
    AddOptions( CommonOptions(), options );
    text.AddRows( options );
    text.AddText( QStringLiteral( "\nArguments:" ) );
    text.AddRows( ArgumentRows( a_command ) );
    for ( const QString& paragraph : a_command.m_helpTail )
        text.AddText( QLatin1Char( '\n' ) + paragraph );
    return text.Text();
}

ExitStatus RunHelp( const CommandLine& a_line, Console& a_console )
{
    const QList<QByteArray> words = a_line.Arguments();
    if ( words.isEmpty() )
        return a_console.Show( OverviewText( a_console.OutScreen() ) );
    const CommandInfo* const command = FindCommand( words.first() );
    return command == nullptr ? RefuseCommand( words.first(), a_console )
                              : a_console.Show( CommandText( *command, a_console.OutScreen() ) );
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
