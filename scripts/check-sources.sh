#!/usr/bin/env bash
# Parses every source file by itself with clang, tests, examples, benchmarks and fuzz targets among them: finds what
# joined builds and precompiled headers hide, an include that is missing, and what only g++ takes. Nothing is built.
# With ccache a file is parsed again only when it, or a header that it reads, has changed.
# Use: scripts/check-sources.sh [PART OF A PATH]...
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

cd "$root"
configure sources -D CMAKE_CXX_COMPILER="$(llvm_tool clang++)"
folder=$root/build/sources
work=$folder/parsed
mkdir -p "$work"

# Each file once, with the command that compiles it (the headers have a check of their own, and what CMake generates is no
# source). CMake writes one key a line, and the path of the file comes last in a command.
sed -nE 's|^  "command": "(.*)",$|\1|p' "$folder/compile_commands.json" | sed -E 's/\\(.)/\1/g' |
  grep -vE " $folder/(headers/|.*_autogen/)|cmake_pch\.hxx(\.cxx)?$" | awk '!seen[$NF]++' >"$work/commands"
awk '{ print $NF }' "$work/commands" | sed "s|^$root/||" | sort >"$work/files"

# What other configurations compile: somebody else's project, and what the runtime alone has instead of what is here.
elsewhere='^(tests/consumer/|tests/tools/ktform/rtlonly/|tools/ktform/RtlFormClasses\.cpp$)'
diff <(git ls-files --cached --others --exclude-standard '*.cpp' | grep -vE "$elsewhere" | sort) "$work/files" ||
  die "the files that are compiled (>) are not those of the source tree (<)"

# All of them, or those whose path has one of the given parts.
[ $# -gt 0 ] || set -- ''
printf '%s\n' "$@" >"$work/parts"
awk -v skip=$((${#root} + 1)) 'NR == FNR { parts[$0]; next }
  { path = substr($NF, skip + 1); for (part in parts) if (index(path, part)) { print; break } }' \
  "$work/parts" "$work/commands" >"$work/chosen"
[ -s "$work/chosen" ] || die "there is no such file"

launcher=$(command -v ccache || true)
# Errors of one file do not keep the next from being parsed; each file's come in one piece.
export folder launcher
sed -E 's/ -o [^ ]+ -c / -fsyntax-only /' "$work/chosen" | tr '\n' '\0' |
  xargs -0 -n 1 -P "$jobs" bash -c 'cd "$folder" && output=$(eval "$launcher $1" 2>&1) || { printf "%s\n" "$output" >&2; exit 1; }' parse ||
  die "not every file compiles by itself"
say "$(wc -l <"$work/chosen") files compile by themselves."
