# Completion of pimvcard for bash: commands, options, their values, and address books.
# Written by scripts/update-completion from the program's table of commands.
# The file belongs into the folder completions of bash-completion under the name pimvcard, or is read by "source".

_pimvcard_commands='list show find who diff check convert help'

_pimvcard_options()
{
  case $1 in
    list) echo '-c --charset --max-card-bytes --max-line-bytes --max-card-lines --max-nesting --max-cards
      --max-book-bytes -q --quiet -h --help -v --version' ;;
    show) echo '-F --full -c --charset --max-card-bytes --max-line-bytes --max-card-lines --max-nesting --max-cards
      --max-book-bytes -q --quiet -h --help -v --version' ;;
    find) echo '-k --keys -l --limit -R --region -c --charset --max-card-bytes --max-line-bytes --max-card-lines
      --max-nesting --max-cards --max-book-bytes -q --quiet -h --help -v --version' ;;
    who) echo '-R --region -c --charset --max-card-bytes --max-line-bytes --max-card-lines --max-nesting
      --max-cards --max-book-bytes -q --quiet -h --help -v --version' ;;
    diff) echo '-F --full -j --json-lines -c --charset --max-card-bytes --max-line-bytes --max-card-lines
      --max-nesting --max-cards --max-book-bytes -q --quiet -h --help -v --version' ;;
    check) echo '-e --extents -S --standard -s --strict -c --charset --max-card-bytes --max-line-bytes
      --max-card-lines --max-nesting --max-cards --max-book-bytes -q --quiet -h --help -v --version' ;;
    convert) echo '-t --to -o --output -d --split -n --filter -s --sort -C --columns -m --mark -p --photos -r --rejects
      -f --force -c --charset --max-card-bytes --max-line-bytes --max-card-lines --max-nesting --max-cards
      --max-book-bytes -q --quiet -h --help -v --version' ;;
    help) echo '-q --quiet -h --help -v --version' ;;
  esac
}

# Prints what the value of an option is: file, folder, other, or words and those words. Nothing without a value.
_pimvcard_value()
{
  case $1 in
    -c | --charset) echo 'words UTF-8 windows-1250 windows-1251 windows-1252 windows-1253 windows-1254 windows-1255
      windows-1256 windows-1257 windows-1258 windows-874 ISO-8859-2 ISO-8859-3 ISO-8859-4 ISO-8859-5
      ISO-8859-6 ISO-8859-7 ISO-8859-8 ISO-8859-10 ISO-8859-13 ISO-8859-14 ISO-8859-15 ISO-8859-16 KOI8-R
      KOI8-U IBM437 IBM850 IBM852 IBM866 macintosh x-mac-cyrillic Shift_JIS EUC-JP EUC-KR GB18030 Big5
      ISO-2022-JP' ;;
    --max-card-bytes) echo other ;;
    --max-line-bytes) echo other ;;
    --max-card-lines) echo other ;;
    --max-nesting) echo other ;;
    --max-cards) echo other ;;
    --max-book-bytes) echo other ;;
    -l | --limit) echo other ;;
    -R | --region) echo other ;;
    -t | --to) echo 'words 2.1 3.0 4.0 jcard csv json json-lines html' ;;
    -o | --output) echo file ;;
    -d | --split) echo folder ;;
    -n | --filter) echo other ;;
    -C | --columns) echo other ;;
    -p | --photos) echo folder ;;
    -r | --rejects) echo file ;;
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
    help) compgen -W "$_pimvcard_commands" -- "$1" ;;
    *) _pimvcard_files "$1" ;;
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
    options) compgen -W "$(_pimvcard_options "${command:-list}")" -- "$word" ;;
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
  # The first word that is neither an option nor a value is the command. If it is a book, the command is list.
  for ((i = 1; i < COMP_CWORD; ++i)); do
    case ${COMP_WORDS[i]} in
      --)
        kind=arguments
        command=${command:-list}
        break ;;
      -?*)
        if [[ -n $(_pimvcard_value "${COMP_WORDS[i]}") ]]; then
          [[ ${COMP_WORDS[i + 1]} == '=' ]] && ((++i))
          ((++i))
        fi ;;
      *)
        if [[ -z $command ]]; then
          command=list
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
