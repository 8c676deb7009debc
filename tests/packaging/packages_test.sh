#!/usr/bin/env bash
# Makes the packages, unpacks them into a root of their own and works with the programs there.
# usage: packages_test.sh BUILD_FOLDER SOURCE_FOLDER
set -euo pipefail
build=$1
source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=$work/root

fail() {
  echo "packages_test.sh: $*" >&2
  exit 1
}

cpack --config "$build/CPackConfig.cmake" -B "$work/packages" > "$work/cpack.log" 2>&1 ||
  { cat "$work/cpack.log" >&2; fail "cpack failed"; }
for package in "$work"/packages/*.deb; do
  dpkg-deb -x "$package" "$root"
done
dpkg-deb -f "$work"/packages/tamrikon_*.deb Depends | grep -qi qt && fail "the terminal's package needs Qt"

find "$root/usr" -type f '(' -path '*/usr/bin/*' -o -path '*/usr/lib/*' ')' > "$work/binaries.txt"
while read -r file; do
  headers=$(readelf -hldW "$file")
  for wanted in 'Type: *DYN' 'GNU_RELRO' 'FLAGS_1.* NOW' 'GNU_STACK.* RW '; do
    grep -q "$wanted" <<< "$headers" || fail "$file isn't hardened: no $wanted"
  done
done < "$work/binaries.txt"

# Programs find their data in the folder that they were unpacked to.
cp -r "$source/examples/Inventory" "$work/project"
PATH=$root/usr/bin:$PATH
cd "$work"
tamrikon compile project/Inventory.vbg --template html --output "$work/pages" --quiet
[ -f pages/Warehouse-Book.html ] || fail "no page of Warehouse.Book"
[ -s "$root/usr/share/tamrikon/tamrikon.chm" ] || fail "no help file"
if [ -f "$root/usr/bin/tamrikon-workbench" ]; then
  QT_QPA_PLATFORM=offscreen tamrikon-workbench --version | grep -q '[0-9]' || fail "no workbench"
  # It finds the add-in beside itself, and the add-in registers itself.
  export XDG_CONFIG_HOME=$work/config
  QT_QPA_PLATFORM=offscreen tamrikon-workbench 2> "$work/workbench.log" &
  workbench=$!
  registry=$XDG_CONFIG_HOME/tamrikon/registry.txt
  for _ in {1..100}; do
    [ ! -f "$registry" ] || break
    sleep 0.1
  done
  kill "$workbench"
  grep -q "$root/usr/lib/tamrikon/" "$registry" || fail "no add-in: $(cat "$work/workbench.log")"
  desktop-file-validate "$root/usr/share/applications/tamrikon-workbench.desktop"
fi

for package in "$root"/usr/share/doc/*/; do
  grep -q '^Copyright: 20' "$package/copyright" && grep -q '^ Permission is' "$package/copyright" ||
    fail "no licence in $package"
  zgrep -q '^tamrikon (' "$package/changelog.gz" || fail "no changelog in $package"
done
for file in doc/tamrikon/manual/command-line.md zsh/vendor-completions/_tamrikon \
  fish/vendor_completions.d/tamrikon.fish tamrikon/Templates/chm.sh; do
  [ -f "$root/usr/share/$file" ] || fail "no $file"
done
find "$root/usr" -type f '(' -perm /022 -o -path '*/doc/*' -perm /111 ')' > "$work/odd.txt"
[ ! -s "$work/odd.txt" ] || fail "files with odd permissions: $(cat "$work/odd.txt")"

for page in "$root"/usr/share/man/man1/*.1.gz; do
  complaints=$(zcat "$page" | groff -man -ww -Tutf8 2>&1 > /dev/null)
  [ -z "$complaints" ] || fail "$complaints"
done
zcat "$root/usr/share/man/man1/tamrikon.1.gz" | sed 's/\\//g' > "$work/manual.txt"
for option in $(tamrikon compile --help | grep -o -- '--[a-z-]*' | sort -u); do
  grep -q -- "$option" "$work/manual.txt" ||
    fail "the manual page doesn't tell of $option"
done

# shellcheck source=/dev/null
. "$root/usr/share/bash-completion/completions/tamrikon"
compopt() { :; }  # only there while a person completes
complete_line() {
  local line=$1
  read -ra COMP_WORDS <<< "$line"
  [[ $line != *" " ]] || COMP_WORDS+=("")
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  _tamrikon
  echo "${COMPREPLY[*]}"
}
expect() {
  local got
  got=$(complete_line "$1")
  [ "$got" = "$2" ] || fail "'$1' completes to '$got', not '$2'"
}
expect "tamrikon com" "compile comment"
expect "tamrikon settings project/Stock.vbp comPriv" "comPrivate="
expect "tamrikon comment project/Stock.vbp Ware" "Warehouse"
expect "tamrikon comment --m" "--missing"
expect "tamrikon compile project/S" "project/Stock project/Stock.vbp"
expect "tamrikon compile x.vbp --template ht" "html"
