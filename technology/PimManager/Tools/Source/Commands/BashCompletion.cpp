#include "Commands/BashCompletion.h"

#include "Commands/CompletedValue.h"
#include "Terminal/TextColumns.h"

#include <QSet>

namespace PimManager::Tools
{

namespace
{

constexpr int s_kWidth = 100;

const char* const s_kScript =
    R"script(# Completion of pimvcard for bash: commands, options, their values, and address books.
# Written by scripts/update-completion from the program's table of commands.
# The file belongs into the folder completions of bash-completion under the name pimvcard, or is read by "source".

_pimvcard_commands='@commands@'

_pimvcard_options()
{
  case $1 in
@options@
  esac
}

# Prints what the value of an option is: file, folder, other, or words and those words. Nothing without a value.
_pimvcard_value()
{
  case $1 in
@values@
  esac
}

# Prints address books, and folders for what is in them.
_pimvcard_books()
{
  local name
  compgen -f -- "$1" | while IFS= read -r name; do
    if [[ -d ${name/#\~/$HOME} || ${name,,} == *.vcf || ${name,,} == *.vcard ]]; then
      printf '%s\n' "$name"
    fi
  done
}

# The same, or else other files.
_pimvcard_files()
{
  local books
  books=$(_pimvcard_books "$1")
  if [[ -n $books ]]; then
    printf '%s\n' "$books"
  else
    compgen -f -- "$1"
  fi
}

# Prints what a word may become that is neither an option nor a value, of a command or of none.
_pimvcard_arguments()
{
  case $2 in
    '')
      if compgen -W "$_pimvcard_commands" -- "$1"; then
        _pimvcard_books "$1"
      else
        _pimvcard_files "$1"
      fi ;;
@helping@    *) _pimvcard_files "$1" ;;
  esac
}

# Prints what a word may become, by what it is.
_pimvcard_words()
{
  local word=$1 command=$2 kind=$3
  case $kind in
    words*) compgen -W "${kind#words}" -- "$word" ;;
    file) compgen -f -- "$word" ;;
    folder) compgen -d -- "$word" ;;
    options) compgen -W "$(_pimvcard_options "${command:-@default@}")" -- "$word" ;;
    arguments) _pimvcard_arguments "$word" "$command" ;;
  esac
}

_pimvcard()
{
  local word=$2 before=$3 command='' kind='' i
  # bash makes "=" a word of its own.
  if [[ ${COMP_WORDS[COMP_CWORD]} == '=' ]]; then
    word=''
    before=${COMP_WORDS[COMP_CWORD - 1]}
  elif [[ $before == '=' ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  # The first word that is neither an option nor a value is the command. If it is a book, the command is @default@.
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      --)
        kind=arguments
        command=${command:-@default@}
        break ;;
      -?*)
        if [[ -n $(_pimvcard_value "${COMP_WORDS[i]}") ]]; then
          [[ ${COMP_WORDS[i + 1]} == '=' ]] && ((++i))
          ((++i))
        fi ;;
      *)
        if [[ -z $command ]]; then
          command=@default@
          [[ " $_pimvcard_commands " == *" ${COMP_WORDS[i]} "* ]] && command=${COMP_WORDS[i]}
        fi ;;
    esac
  done
  kind=${kind:-$(_pimvcard_value "$before")}
  if [[ -z $kind ]]; then
    [[ $word == -* ]] && kind=options || kind=arguments
  fi
  mapfile -t COMPREPLY < <(_pimvcard_words "$word" "$command" "$kind")
}

complete -o filenames -F _pimvcard pimvcard
)script";

using Options = std::vector<OptionInfo>;

// Words in quotes, on as many lines as they need.
QString Quoted( const QStringList& a_words, const QString& a_indent )
{
    const QStringList lines = Wrapped( a_words.join( QLatin1Char( ' ' ) ), s_kWidth );
    return QLatin1Char( '\'' ) + lines.join( QLatin1Char( '\n' ) + a_indent ) + QLatin1Char( '\'' );
}

QStringList NamesOf( const OptionInfo& a_option )
{
    QStringList names( QStringLiteral( "--" ) + a_option.m_name );
    if ( !a_option.m_letter.isEmpty() )
        names.prepend( QLatin1Char( '-' ) + a_option.m_letter );
    return names;
}

QStringList CommandNames( const std::vector<CommandInfo>& a_commands )
{
    QStringList names;
    for ( const CommandInfo& command : a_commands )
        names << command.m_name;
    return names;
}

QString Branch( const QString& a_pattern, const QString& a_action )
{
    return QStringLiteral( "    %1) %2 ;;" ).arg( a_pattern, a_action );
}

QString OptionsBranch( const CommandInfo& a_command, const Options& a_common )
{
    QStringList names;
    for ( const OptionInfo& option : a_command.m_options )
        names << NamesOf( option );
    for ( const OptionInfo& option : a_common )
        names << NamesOf( option );
    return Branch( a_command.m_name, QStringLiteral( "echo " ) + Quoted( names, QStringLiteral( "      " ) ) );
}

QString ValueOf( const OptionInfo& a_option )
{
    switch ( CompletedValueOf( a_option ) )
    {
    case CompletedValue::Words:
        return Quoted( QStringList( QStringLiteral( "words" ) ) + a_option.m_words, QStringLiteral( "      " ) );
    case CompletedValue::File:
        return QStringLiteral( "file" );
    case CompletedValue::Folder:
        return QStringLiteral( "folder" );
    case CompletedValue::Other:
        return QStringLiteral( "other" );
    case CompletedValue::None:
        break;
    }
    return QString();
}

/// The branches for the values of options. An option that several commands have is of the same kind in all of them.
class ValueBranches
{
public:
    void Add( const Options& a_options );
    QString Text() const { return m_branches.join( QLatin1Char( '\n' ) ); }

private:
    QSet<QString> m_known;
    QStringList m_branches;
};

void ValueBranches::Add( const Options& a_options )
{
    for ( const OptionInfo& option : a_options )
    {
        const bool hasValue = CompletedValueOf( option ) != CompletedValue::None;
        if ( !hasValue || m_known.contains( option.m_name ) )
            continue;
        m_known.insert( option.m_name );
        m_branches << Branch( NamesOf( option ).join( QStringLiteral( " | " ) ),
                              QStringLiteral( "echo " ) + ValueOf( option ) );
    }
}

QString ValuesOf( const std::vector<CommandInfo>& a_commands, const Options& a_common )
{
    ValueBranches branches;
    for ( const CommandInfo& command : a_commands )
        branches.Add( command.m_options );
    branches.Add( a_common );
    return branches.Text();
}

// The commands whose arguments are commands.
QString HelpingBranches( const std::vector<CommandInfo>& a_commands )
{
    QString branches;
    for ( const CommandInfo& command : a_commands )
    {
        if ( IsArgumentCommand( command ) )
            branches += Branch( command.m_name, QStringLiteral( "compgen -W \"$_pimvcard_commands\" -- \"$1\"" ) ) +
                        QLatin1Char( '\n' );
    }
    return branches;
}

} // namespace

QByteArray BashCompletion( const std::vector<CommandInfo>& a_commands, const Options& a_common )
{
    QStringList options;
    for ( const CommandInfo& command : a_commands )
        options << OptionsBranch( command, a_common );
    return QString::fromLatin1( s_kScript )
        .replace( QLatin1String( "@commands@" ), CommandNames( a_commands ).join( QLatin1Char( ' ' ) ) )
        .replace( QLatin1String( "@options@" ), options.join( QLatin1Char( '\n' ) ) )
        .replace( QLatin1String( "@values@" ), ValuesOf( a_commands, a_common ) )
        .replace( QLatin1String( "@helping@" ), HelpingBranches( a_commands ) )
        .replace( QLatin1String( "@default@" ), a_commands.front().m_name )
        .toUtf8();
}

} // namespace PimManager::Tools
