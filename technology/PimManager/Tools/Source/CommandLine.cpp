#include "CommandLine.h"

#include "TerminalText.h"

#include <QCommandLineOption>
#include <QStringList>

namespace PimManager::vCard::Tools
{

namespace
{

const QString& HelpName()
{
    static const QString s_kName = QStringLiteral( "help" );
    return s_kName;
}

const QString& VersionName()
{
    static const QString s_kName = QStringLiteral( "version" );
    return s_kName;
}

} // namespace

CommandLine::CommandLine( const QString& a_description )
{
    m_parser.setApplicationDescription( a_description );
    AddOption( { { QStringLiteral( "h" ), HelpName() }, QStringLiteral( "Shows this help and ends." ) } );
    AddOption( { { QStringLiteral( "v" ), VersionName() }, QStringLiteral( "Shows the version and ends." ) } );
}

void CommandLine::AddOption( const QCommandLineOption& a_option )
{
    m_parser.addOption( a_option );
}

void CommandLine::AddArgument( const QString& a_name, const QString& a_description, const QString& a_syntax )
{
    m_parser.addPositionalArgument( a_name, a_description, a_syntax );
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
    return ToTerminalText( QString::fromUtf8( m_parser.errorText().toLatin1() ) );
}

bool CommandLine::WantsHelp() const
{
    return IsSet( HelpName() );
}

bool CommandLine::WantsVersion() const
{
    return IsSet( VersionName() );
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

QString CommandLine::HelpText() const
{
    return m_parser.helpText();
}

} // namespace PimManager::vCard::Tools
