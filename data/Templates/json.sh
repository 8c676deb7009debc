#!/bin/sh
# Turns files of json.tmkt, which are in the project's code page, into UTF-8.
# usage: json.sh OUTPUT_FOLDER CHARSET NAME...
cd "$1" || exit
# Four code pages have other names there.
page=$(echo "$2" | sed 's/shift_jis/cp932/; s/gbk/cp936/; s/euc-kr/cp949/; s/big5/cp950/')
shift 2
for name; do
  if iconv -f "$page" -t utf-8 "$name.json" > "$name.tmp" && mv "$name.tmp" "$name.json"; then
    echo "$name.json is written."
  else
    echo "ERROR: $name.json can't be made UTF-8 by iconv."
  fi
done
exit 0
