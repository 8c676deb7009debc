#!/bin/sh
# Installs the Debian packages that a task needs and that aren't there yet.
# usage: install_packages.sh [build] [workbench] [test] [package] [help] [fuzz] [valgrind]
#   [coverage] [bench]
set -eu

packages=
for task in "$@"; do
  case $task in
    build) packages="$packages g++ cmake ninja-build libcli11-dev" ;;
    workbench) packages="$packages qt6-base-dev fonts-dejavu-core" ;;
    test)
      packages="$packages libgtest-dev python3 fp-utils libchm-bin cmark-gfm"
      packages="$packages chromium chromium-driver python3-selenium tidy"
      packages="$packages dpkg-dev file desktop-file-utils groff"
      packages="$packages python3-yaml python3-markdown"
      ;;
    package) packages="$packages dpkg-dev file" ;;
    help) packages="$packages python3 python3-markdown fp-utils" ;;
    fuzz) packages="$packages clang" ;;
    valgrind) packages="$packages valgrind" ;;
    coverage) packages="$packages gcovr python3" ;;
    bench) packages="$packages tar universal-ctags doxygen libbenchmark-dev python3" ;;
    *) echo "install_packages.sh: there is no task '$task'" >&2; exit 2 ;;
  esac
done

missing=
for package in $packages; do
  state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$state" = installed ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

as_root=
[ "$(id -u)" -eq 0 ] || as_root=sudo
echo "Installing:$missing"
export DEBIAN_FRONTEND=noninteractive
$as_root apt-get update -qq
# shellcheck disable=SC2086 # a list of words
$as_root apt-get install -y -qq --no-install-recommends $missing > /dev/null
