#!/bin/sh
# Turns files of rtf.tmkt, which are in the project's code page, into ASCII: each letter beyond it
# becomes \uN? with its number, which RTF wants to be at most 32767.
# usage: rtf.sh OUTPUT_FOLDER CHARSET NAME...
cd "$1" || exit
# Four code pages have other names there.
page=$(echo "$2" | sed 's/shift_jis/cp932/; s/gbk/cp936/; s/euc-kr/cp949/; s/big5/cp950/')
shift 2
for name; do
  if iconv -f "$page" -t utf-16le "$name.rtf" > "$name.tmp" &&
    od -An -v -tu2 -w2 --endian=little "$name.tmp" |
    awk '{ if ($1 < 128) printf "%c", $1; else printf "\\u%d?", $1 < 32768 ? $1 : $1 - 65536 }' \
      > "$name.rtf"; then
    echo "$name.rtf is written."
  else
    echo "ERROR: $name.rtf can't be made ASCII by iconv, od and awk."
  fi
  rm -f "$name.tmp"
done
exit 0
