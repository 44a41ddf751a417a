#include "Commands/CommandLine.h"

#include "Commands/Suggestion.h"
#include "Terminal/TerminalText.h"

#include <QCommandLineOption>

namespace PimManager::Tools
{

CommandLine::CommandLine( const CommandInfo& a_command ) :
    m_command( a_command )
{
    AddOptions( a_command.m_options );
    AddOptions( CommonOptions() );
}

void CommandLine::AddOptions( const std::vector<OptionInfo>& a_options )
{
    for ( const OptionInfo& option : a_options )
    {
        QStringList names( option.m_name );
        if ( !option.m_letter.isEmpty() )
            names.prepend( option.m_letter );
        m_parser.addOption( QCommandLineOption( names, QString(), option.m_argument ) );
        m_options << QStringLiteral( "--" ) + option.m_name;
    }
}

bool CommandLine::Parse( const QList<QByteArray>& a_arguments )
{
    QStringList arguments( QStringLiteral( "pimvcard" ) );
    for ( const QByteArray& argument : a_arguments )
        arguments.append( QString::fromLatin1( argument ) );
    return m_parser.parse( arguments );
}

QString CommandLine::ErrorText() const
{
    const QString unknown = m_parser.unknownOptionNames().value( 0 );
    const QString suggestion =
        unknown.isEmpty() ? QString() : SuggestionFor( QStringLiteral( "--" ) + unknown, m_options );
    return ToTerminalText( QString::fromUtf8( m_parser.errorText().toLatin1() ) ) + suggestion;
}

bool CommandLine::IsSet( const QString& a_option ) const
{
    return m_parser.isSet( a_option );
}

QByteArray CommandLine::Value( const QString& a_option ) const
{
    return m_parser.value( a_option ).toLatin1();
}

QList<QByteArray> CommandLine::Arguments() const
{
    QList<QByteArray> arguments;
    const QStringList texts = m_parser.positionalArguments();
    for ( const QString& text : texts )
        arguments.append( text.toLatin1() );
    return arguments;
}

} // namespace PimManager::Tools
