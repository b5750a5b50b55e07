#!/usr/bin/env bash
# Installs what is missing, builds the release preset and starts the form designer, or for a .ui file the viewer of Qt's
# forms. Without a display the program draws its window into a picture in build and prints what it shows.
# Use: ./run.sh [ARGUMENT]...    the program gets the arguments: a form file, --help.   KT_NO_INSTALL=1 installs nothing.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

program=designer
for argument in "$@"; do
  case $argument in *.[uU][iI]) program=uiview ;; esac
done
[ -d "$root/examples/$program" ] || die "there is no $program to run: examples/$program is not in this tree"

install_missing "${build_packages[@]}"
say "Building $program (release) ..."
configure release
if [ $program = uiview ] && ! has_target release uiview; then
  die "Qt's loader of forms is missing: install Qt's UiTools (on Debian and Ubuntu: ${ui_packages[*]})"
fi
build release "$program"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
  say "There is no display: drawing $program into build/$program.png"
  set -- --draw "$root/build/$program.png" "$@"
fi
exec "$root/build/release/bin/$program" "$@"
