# Completion of pimvcard for bash: commands, the options of the command, folders, character sets and address books.
# Goes to the folder completions of bash-completion under the name pimvcard; or is read by "source".

# The words that may follow an option, one a line, folders and files as they are; fails for an option that takes none.
_pimvcard_values()
{
  case $1 in
    -c | --charset)
      compgen -W "UTF-8 windows-1252 ISO-8859-1 ISO-8859-15 windows-1250 windows-1251 KOI8-R Shift_JIS EUC-JP
                  ISO-2022-JP GB18030 Big5 EUC-KR" -- "$2" ;;
    -p | --photos) compgen -d -- "$2" ;;
    -r | --rejects | -o | --html) compgen -f -- "$2" ;;
    --max-*) ;;
    *) return 1 ;;
  esac
  return 0
}

_pimvcard_options()
{
  local options="-h --help -v --version"
  case $1 in
    import) options+=" -c --charset -j --json -J --json-lines -q --quiet -p --photos -r --rejects -o --html -f --force" ;;
    check)
      options+=" -c --charset -e --extents --max-card-bytes --max-line-bytes --max-card-lines --max-nesting --max-cards"
      options+=" --max-book-bytes" ;;
    print) options+=" -f --full -j --json -J --json-lines -l --log" ;;
  esac
  compgen -W "$options" -- "$2"
}

# Folders, for what is in them, and address books.
_pimvcard_books()
{
  local name
  compgen -f -- "$1" | while IFS= read -r name; do
    if [[ -d $name || $name == *.[vV][cC][fF] || $name == *.[vV][cC][aA][rR][dD] ]]; then
      printf '%s\n' "$name"
    fi
  done
}

_pimvcard()
{
  local word=$2 before=$3 command='' i
  # bash makes "=" a word of its own.
  if [[ ${COMP_WORDS[COMP_CWORD]} == '=' ]]; then
    word=''
    before=${COMP_WORDS[COMP_CWORD - 1]}
  elif [[ $before == '=' ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  for ((i = 1; i < COMP_CWORD; ++i)); do
    if [[ ${COMP_WORDS[i]} != -* ]]; then
      command=${COMP_WORDS[i]}
      break
    fi
  done

  COMPREPLY=()
  if [[ -z $command && $word != -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "import check print" -- "$word")
  elif [[ $command == import || $command == check ]] && _pimvcard_values "$before" "$word" >/dev/null; then
    mapfile -t COMPREPLY < <(_pimvcard_values "$before" "$word")
  elif [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(_pimvcard_options "$command" "$word")
  else
    mapfile -t COMPREPLY < <(_pimvcard_books "$word")
  fi
}

complete -o filenames -o default -F _pimvcard pimvcard
