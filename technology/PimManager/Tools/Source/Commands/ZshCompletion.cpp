#include "Commands/ZshCompletion.h"

#include "Commands/CompletedValue.h"

namespace PimManager::Tools
{

namespace
{

const char* const s_kScript = R"script(#compdef pimvcard
# Completion of pimvcard for zsh: commands, options, their values, and address books.
# Written by scripts/update-completion from the program's table of commands.
# The file belongs into a folder of $fpath under the name _pimvcard.

_pimvcard_commands()
{
  local -a commands
  commands=(
@commands@
  )
  _describe -t commands command commands
}

_pimvcard_books()
{
  _files -g '(#i)*.(vcf|vcard)(-.)'
}

_pimvcard()
{
  local curcontext=$curcontext state line
  typeset -A opt_args
  local -a common @arrays@
@common@
@options@

  _arguments -C -s -S $common $@default@ '(-)1: :->first' '(-)*:: :->others' && return
  case $state in
    first) _alternative 'commands:command:_pimvcard_commands' 'books:address book:_pimvcard_books' ;;
    others)
      curcontext=${curcontext%:*:*}:pimvcard-$line[1]:
      case $line[1] in
@branches@
        *) _arguments -s -S $common $@default@ '*:address book:_pimvcard_books' ;;
      esac ;;
  esac
}

_pimvcard "$@"
)script";

using Options = std::vector<OptionInfo>;

// The first statement of a help text, as it can be written between brackets and apostrophes.
QString Explanation( const QString& a_help )
{
    QString text = a_help;
    for ( const QString& end : { QStringLiteral( ". " ), QStringLiteral( ": " ) } )
        text = text.section( end, 0, 0 );
    if ( text.endsWith( QLatin1Char( '.' ) ) )
        text.chop( 1 );
    text.replace( QLatin1Char( '\\' ), QLatin1String( "\\\\" ) );
    for ( const char mark : { '[', ']', ':' } )
        text.replace( QLatin1Char( mark ), QLatin1Char( '\\' ) + QString( QLatin1Char( mark ) ) );
    return text.replace( QLatin1Char( '\'' ), QLatin1String( "'\\''" ) );
}

// What follows the explanation of an option: the name of its value, and what completes it.
QString ValueOf( const OptionInfo& a_option )
{
    QString name = QLatin1Char( ':' ) + a_option.m_argument.toLower() + QLatin1Char( ':' );
    switch ( CompletedValueOf( a_option ) )
    {
    case CompletedValue::Words:
        return name + QLatin1Char( '(' ) + a_option.m_words.join( QLatin1Char( ' ' ) ) + QLatin1Char( ')' );
    case CompletedValue::File:
        return name + QStringLiteral( "_files" );
    case CompletedValue::Folder:
        return name + QStringLiteral( "_files -/" );
    case CompletedValue::Other:
        return name;
    case CompletedValue::None:
        break;
    }
    return QString();
}

QString OptionLine( const OptionInfo& a_option )
{
    const bool hasValue = CompletedValueOf( a_option ) != CompletedValue::None;
    const QString name = QStringLiteral( "--" ) + a_option.m_name;
    const QString nameAndEnd = hasValue ? name + QLatin1Char( '=' ) : name;
    const QString rest = QStringLiteral( "[%1]%2'" ).arg( Explanation( a_option.m_help ), ValueOf( a_option ) );
    if ( a_option.m_letter.isEmpty() )
        return QStringLiteral( "    '%1%2" ).arg( nameAndEnd, rest );
    const QString letter = QLatin1Char( '-' ) + a_option.m_letter;
    const QString letterAndEnd = hasValue ? letter + QLatin1Char( '+' ) : letter;
    return QStringLiteral( "    '(%1 %2)'{%3,%4}'%5" ).arg( letter, name, letterAndEnd, nameAndEnd, rest );
}

QString OptionArray( const QString& a_name, const Options& a_options )
{
    QStringList lines( QStringLiteral( "  %1=(" ).arg( a_name ) );
    for ( const OptionInfo& option : a_options )
        lines << OptionLine( option );
    return lines.join( QLatin1Char( '\n' ) ) + QStringLiteral( "\n  )" );
}

QString ArrayOf( const CommandInfo& a_command )
{
    return QStringLiteral( "options_of_" ) + a_command.m_name;
}

QString BranchOf( const CommandInfo& a_command )
{
    const QString arguments = IsArgumentCommand( a_command ) ? QStringLiteral( "':command:_pimvcard_commands'" )
                                                             : QStringLiteral( "'*:address book:_pimvcard_books'" );
    return QStringLiteral( "        %1) _arguments -s -S $common $%2 %3 ;;" )
        .arg( a_command.m_name, ArrayOf( a_command ), arguments );
}

/// What the script says of each command.
struct CommandTexts
{
    QStringList m_names;
    QStringList m_arrays;
    QStringList m_options;
    QStringList m_branches;
};

CommandTexts TextsOf( const std::vector<CommandInfo>& a_commands )
{
    CommandTexts texts;
    for ( const CommandInfo& command : a_commands )
    {
        texts.m_names << QStringLiteral( "    '%1:%2'" ).arg( command.m_name, Explanation( command.m_summary ) );
        texts.m_arrays << ArrayOf( command );
        texts.m_options << OptionArray( ArrayOf( command ), command.m_options );
        texts.m_branches << BranchOf( command );
    }
    return texts;
}

} // namespace

QByteArray ZshCompletion( const std::vector<CommandInfo>& a_commands, const Options& a_common )
{
    const CommandTexts texts = TextsOf( a_commands );
    const QLatin1Char lineFeed( '\n' );
    return QString::fromLatin1( s_kScript )
        .replace( QLatin1String( "@commands@" ), texts.m_names.join( lineFeed ) )
        .replace( QLatin1String( "@arrays@" ), texts.m_arrays.join( QLatin1Char( ' ' ) ) )
        .replace( QLatin1String( "@common@" ), OptionArray( QStringLiteral( "common" ), a_common ) )
        .replace( QLatin1String( "@options@" ), texts.m_options.join( lineFeed ) )
        .replace( QLatin1String( "@branches@" ), texts.m_branches.join( lineFeed ) )
        .replace( QLatin1String( "@default@" ), ArrayOf( a_commands.front() ) )
        .toUtf8();
}

} // namespace PimManager::Tools
