#!/usr/bin/env bash
# Measures whole compiles of generated projects with html.tmkt against two programs that do the
# least of the same work: tar writes the same files, ctags reads the same sources.
#
#   compile_bench.sh PROGRAM [MEMBERS...]
#
# PROGRAM is tamrikon; generate_project is expected beside it. Everything lies in memory, the
# commands run in turn, and the best of five counts. Needs tar, universal-ctags and awk.
set -euo pipefail
export LC_ALL=C

if [ $# -lt 1 ]; then
  echo "usage: compile_bench.sh PROGRAM [MEMBERS...]" >&2
  exit 2
fi
program=$(realpath "$1")
generator=$(dirname "$program")/generate_project
shift
sizes=("$@")
[ ${#sizes[@]} -gt 0 ] || sizes=(1000 10000 50000)
for tool in tar ctags awk "$program" "$generator"; do
  if ! command -v "$tool" > /dev/null; then
    echo "compile_bench.sh: $tool is missing" >&2
    exit 1
  fi
done

work=$(mktemp -d /dev/shm/tamrikon-bench.XXXXXX)
trap 'rm -rf "$work"' EXIT
cd "$work"

compile() {
  "$program" compile project/Large.vbp --template html.tmkt --output "$work/pages" --no-exec --quiet
}

unpack() {
  tar xf pages.tar -C unpacked
}

scan() {
  ctags --options=NONE --langdef=VbScan --langmap=VbScan:.bas.cls.frm --languages=VbScan \
    --regex-VbScan='/^(Public|Private|Friend) ([A-Z][a-z]+ )*([A-Za-z0-9_]+)/\3/m,member/' \
    --sort=no -R -f tags project/Source
}

# Puts the microseconds that a command took into "elapsed".
measure() {
  local start=${EPOCHREALTIME/./}
  "$@" > output.txt 2>&1 || { echo "compile_bench.sh: $1 failed:" >&2; cat output.txt >&2; exit 1; }
  elapsed=$((${EPOCHREALTIME/./} - start))
}

least() {
  printf '%s\n' "$@" | sort -n | head -1
}

printf '%8s %7s %7s %10s %8s %8s %22s %12s %9s\n' members files "MB" "compile s" "tar s" \
  "ctags s" "compile/(tar+ctags)" "us/member" "vs first"
first=
for members in "${sizes[@]}"; do
  rm -rf project
  "$generator" "$members" project
  compile_times=() tar_times=() ctags_times=()
  for run in 0 1 2 3 4 5; do
    rm -rf pages unpacked tags
    mkdir unpacked
    measure compile
    if [ "$run" = 0 ]; then
      tar cf pages.tar -C pages .
      continue
    fi
    compile_times+=("$elapsed")
    measure unpack
    tar_times+=("$elapsed")
    measure scan
    ctags_times+=("$elapsed")
  done
  compile=$(least "${compile_times[@]}")
  : "${first:=$(awk "BEGIN { print $compile / $members }")}"
  find pages -type f -printf '%s\n' | awk -v members="$members" -v compile="$compile" \
    -v tar="$(least "${tar_times[@]}")" -v ctags="$(least "${ctags_times[@]}")" -v first="$first" '
    { files++; bytes += $1 }
    END {
      printf "%8d %7d %7.1f %10.3f %8.3f %8.3f %22.2f %12.1f %9.2f\n", members, files, bytes / 1e6,
        compile / 1e6, tar / 1e6, ctags / 1e6, compile / (tar + ctags), compile / members,
        compile / members / first
    }'
done
