#!/bin/sh
# Takes the pages of markdown.tmkt to UTF-8: those that the index names and that aren't ASCII.
# usage: markdown.sh OUTPUT_FOLDER CHARSET PROJECT INDEX_FILE
cd "$1" || exit
# Four code pages have other names there.
page=$(echo "$2" | sed 's/shift_jis/cp932/; s/gbk/cp936/; s/euc-kr/cp949/; s/big5/cp950/')
iconv -f "$page" -t utf-8 "$4" | grep -o '](<[^>]*[.]md>)' | sed 's/..<//; s/>.$//' | sort -u |
  LC_ALL=C xargs -r -d '\n' grep -al '[^[:print:][:space:]]' |
  while read -r file; do
    if ! { iconv -f "$page" -t utf-8 "$file" > "$file.tmp" && mv "$file.tmp" "$file"; }; then
      echo "ERROR: $file can't be made UTF-8 by iconv."
    fi
  done
echo "The documentation of $3 is written."
