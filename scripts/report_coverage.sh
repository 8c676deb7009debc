#!/usr/bin/env bash
# Prints which lines and branches of src the tests reached, by folder, and writes the same by file
# and line. Branches that only an exception takes don't count.
# usage: report_coverage.sh BUILD_FOLDER
set -euo pipefail
export LC_ALL=C.UTF-8
cd "$(dirname "$0")/.."
report=$1/report
mkdir -p "$report"
gcovr --root . --filter src/ --exclude-throw-branches --exclude-unreachable-branches \
  --csv "$report/files.csv" --html-details "$report/index.html" "$1"
awk -F, '
  function count(folder) {
    lines[folder] += $2; reached[folder] += $3; branches[folder] += $5; taken[folder] += $6
  }
  NR > 1 { folder = $1; sub("/[^/]*$", "", folder); count(folder); count("total") }
  END {
    for (folder in lines)
      printf "%-24s %6d lines %5.1f %%  %6d branches %5.1f %%\n", folder, lines[folder],
        100 * reached[folder] / (lines[folder] ? lines[folder] : 1), branches[folder],
        100 * taken[folder] / (branches[folder] ? branches[folder] : 1)
  }' "$report/files.csv" | sort
echo "By file and line: $report/index.html"
