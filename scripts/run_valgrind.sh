#!/usr/bin/env bash
# Runs the program's commands on a copy of the example projects under valgrind: no use of memory
# that isn't there or was never set, and nothing left behind.
# usage: run_valgrind.sh PROGRAM EXAMPLE_FOLDER
set -euo pipefail
program=$(realpath "$1")
example=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$example" "$work/project"
cd "$work/project"

check() {
  echo "tamrikon $*"
  valgrind --quiet --trace-children=no --error-exitcode=99 --leak-check=full \
    --errors-for-leak-kinds=definite --show-leak-kinds=definite --track-origins=yes \
    "$program" "$@" > "$work/output.txt" 2> "$work/errors.txt" ||
    { echo "run_valgrind.sh: failed:" >&2; cat "$work/errors.txt" >&2; exit 1; }
}

for template in html rtf json chm markdown; do
  check compile Inventory.vbg --template "$template" --output "$work/$template" --no-exec
done
check compile Stock.vbp --template html --output "$work/all" --no-exec --save \
  --set comPrivate=1 --set comNonCommented=1 --set comContextID=1 --set comWriteDescription=1
check comment Stock.vbp --missing --dry-run
check comment Stock.vbp --missing
check example Stock.vbp Warehouse:5-9
check settings Stock.vbp
check settings Stock.vbp wordWrapLength=72 titlePageText="Größe"
check templates
