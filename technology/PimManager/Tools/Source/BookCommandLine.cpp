#include "BookCommandLine.h"

#include "Version.h"

#include <QCommandLineOption>
#include <QTextCodec>

namespace PimManager::vCard::Tools
{

namespace
{

const QString s_kCharset = QStringLiteral( "charset" );

} // namespace

BookCommandLine::BookCommandLine( const QString& a_command, const QString& a_description ) :
    CommandLine( a_description ),
    m_command( a_command )
{
    AddArgument( a_command, a_description, a_command );
    AddArgument( QStringLiteral( "file" ), QStringLiteral( "Address books to read; - is standard input." ),
                 QStringLiteral( "FILE..." ) );
    AddOption( { { QStringLiteral( "c" ), s_kCharset },
                 QStringLiteral( "The character set of cards that are not in UTF-8 and name none; windows-1252 unless "
                                 "given." ),
                 QStringLiteral( "NAME" ) } );
}

std::optional<ExitStatus> BookCommandLine::ParseFor( Console& a_console, const QList<QByteArray>& a_arguments,
                                                     const QString& a_helpTail )
{
    if ( !Parse( a_arguments ) )
        return Refuse( a_console, ErrorText() );
    if ( WantsHelp() )
        return a_console.Show( HelpText() + a_helpTail );
    if ( WantsVersion() )
        return a_console.Show( VersionText() );
    if ( IsSet( s_kCharset ) && QTextCodec::codecForName( Value( s_kCharset ) ) == nullptr )
        return Refuse( a_console, QStringLiteral( "unknown character set" ) );
    if ( Arguments().isEmpty() )
        return Refuse( a_console, QStringLiteral( "no file to " ) + m_command );
    return std::nullopt;
}

ExitStatus BookCommandLine::Refuse( Console& a_console, const QString& a_reason ) const
{
    return a_console.Refuse( a_reason, QStringLiteral( "pimvcard " ) + m_command );
}

QByteArray BookCommandLine::CharsetOr( const QByteArray& a_default ) const
{
    return IsSet( s_kCharset ) ? Value( s_kCharset ) : a_default;
}

} // namespace PimManager::vCard::Tools
