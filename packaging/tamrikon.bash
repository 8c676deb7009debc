# Completes the commands, options, settings, modules and files of tamrikon in bash. The program itself
# says what there is: a candidate a line with a tab and its meaning behind it, or, behind a colon, what
# the shell is to add.

_tamrikon_files() {
  local pattern=$1 file
  while IFS= read -r file; do
    COMPREPLY+=("$file")
  done < <(compgen -d -- "$word"; compgen -f -- "$word" | grep -iE "\.($pattern)$")
  compopt -o filenames
}

_tamrikon() {
  local word=${COMP_WORDS[COMP_CWORD]} line file
  COMPREPLY=()
  while IFS= read -r line; do
    case $line in
      ":files "*) _tamrikon_files "${line#:files }" ;;
      :files | :folders)
        while IFS= read -r file; do
          COMPREPLY+=("$file")
        done < <(if [ "$line" = :files ]; then compgen -f -- "$word"; else compgen -d -- "$word"; fi)
        compopt -o filenames ;;
      :nospace) compopt -o nospace ;;
      *) COMPREPLY+=("${line%%$'\t'*}") ;;
    esac
  done < <("${COMP_WORDS[0]}" __complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2> /dev/null)
}

complete -F _tamrikon tamrikon
