#!/bin/sh
# Makes the help files of chm.tmkt with whichever help compiler is there.
# usage: chm.sh OUTPUT_FOLDER CHARSET TITLE_PAGE NAME[=HELP_FILE]...
# A NAME may stand in another folder; its help file is NAME.chm unless the project says another one.
cd "$1" || exit
charset=$2
title=$3
shift 3

# File names on the disk are UTF-8, so chmcmd is given the project with all but its first two lines in
# UTF-8. It can't read links with other letters than ASCII, and its complaints of those, which come
# with a "?", are left out.
run_chmcmd() {
  (head -n 2 "$1.hhp"; tail -n +3 "$1.hhp" | iconv -f "$charset" -t utf-8) > "$1.tmp.hhp"
  chmcmd "$1.tmp.hhp" 2>&1 | grep -v 'Found file .*?'
  rm "$1.tmp.hhp"
}

for each; do
  name=${each%%=*}
  made=$name.chm
  test "$name" = "$each" || made=${each#*=}
  rm -f "$made"
  if command -v hhc > /dev/null; then
    (cd "$(dirname "$name")" && hhc "${name##*/}.hhp" 2>&1)
  elif command -v chmcmd > /dev/null; then
    (cd "$(dirname "$name")" && run_chmcmd "${name##*/}")
  else
    echo "For a help file, install chmcmd (package fp-utils) or hhc. The pages can be read from $title on."
    break
  fi
  # Seen from the file, as hhc ends with the status 1 when all went well, and chmcmd with 0.
  test -e "$made" || echo "ERROR: $made was not made."
done
exit 0
