#!/usr/bin/env bash
# Installs what is missing, builds the release preset and starts the form designer. Without a display the designer draws
# its window into build/designer.png and prints the form that it shows.
# Use: ./run.sh [ARGUMENT]...    the designer gets the arguments: a form file, --help.   KT_NO_INSTALL=1 installs nothing.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

program=designer
[ -d "$root/examples/$program" ] || die "there is no $program to run: examples/$program is not in this tree"

install_missing "${build_packages[@]}"
say "Building $program (release) ..."
configure release
build release "$program"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
  say "There is no display: drawing the designer into build/designer.png"
  set -- --draw "$root/build/designer.png" "$@"
fi
exec "$root/build/release/bin/$program" "$@"
