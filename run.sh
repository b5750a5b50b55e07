#!/usr/bin/env bash
# Installs what is missing, builds the release preset and does the main job: `ktform check` over the sample forms.
# Use: ./run.sh [ARGUMENT]...    with arguments, ktform gets these instead.   KT_NO_INSTALL=1 installs nothing.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

# The main job: the program, and what it is given when nothing else is asked for. This is the place for the designer.
program=ktform
shopt -s nullglob
samples=("$root"/examples/forms/*)
default_arguments=(check "${samples[@]}")

[ -d "$root/tools/$program" ] || die "there is no $program to run: tools/$program is not in this tree"
[ $# -gt 0 ] || [ ${#samples[@]} -gt 0 ] || die "there are no sample forms to check: examples/forms is missing or empty"

install_missing "${build_packages[@]}"
say "Building $program (release) ..."
configure release
build release "$program"

[ $# -gt 0 ] || set -- "${default_arguments[@]}"
exec "$root/build/release/bin/$program" "$@"
