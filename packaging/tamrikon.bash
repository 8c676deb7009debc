# Completes the commands, options and files of tamrikon in bash.

_tamrikon_files() {
  local pattern=$1 file
  while IFS= read -r file; do
    COMPREPLY+=("$file")
  done < <(compgen -d -- "$word"; compgen -f -- "$word" | grep -iE "\.($pattern)$")
  compopt -o filenames
}

_tamrikon() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  local commands="compile comment example settings templates"
  local pages="874 932 936 949 950 1250 1251 1252 1253 1254 1255 1256 1257 1258 65001"
  local command= options= i
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      compile | comment | example | settings | templates) command=${COMP_WORDS[i]}; break ;;
    esac
  done

  case $before in
    --codepage) mapfile -t COMPREPLY < <(compgen -W "$pages" -- "$word"); return ;;
    --template)
      _tamrikon_files tmkt
      local names
      names=$(tamrikon templates 2> /dev/null | sed 's/ .*//')
      while IFS= read -r i; do COMPREPLY+=("$i"); done < <(compgen -W "$names" -- "$word")
      return ;;
    --output) mapfile -t COMPREPLY < <(compgen -d -- "$word"); compopt -o filenames; return ;;
    --log) mapfile -t COMPREPLY < <(compgen -f -- "$word"); compopt -o filenames; return ;;
    --set) return ;;
  esac

  case $command in
    compile) options="--set --template --output --no-exec --save --log --quiet --verbose --fail-on-warnings --open --timings" ;;
    comment) options="--missing --dry-run" ;;
    "") mapfile -t COMPREPLY < <(compgen -W "$commands --help --version" -- "$word"); return ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options --codepage --help" -- "$word")
  elif [ "$command" != templates ]; then
    _tamrikon_files "vbp|vbg"
  fi
}

complete -F _tamrikon tamrikon
