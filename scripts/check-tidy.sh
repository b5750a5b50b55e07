#!/usr/bin/env bash
# Runs clang-tidy over the sources of libraries, tools and examples, or over the given ones; .clang-tidy says which
# checks, and why not others. The compiler's own warnings count too, so this also shows that each of them compiles with clang.
# Use: scripts/check-tidy.sh [FILE.cpp]...
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

cd "$root"
# Every check that is off has its reason in the table, and the table names nothing else.
diff <(sed -nE 's/^#   ([a-z][^ ]*) .*/\1/p' .clang-tidy | sort) <(sed -nE 's/^  -([a-z][^,]*),?$/\1/p' .clang-tidy | sort) ||
  die "the reasons in .clang-tidy do not match its list"
configure tidy -D CMAKE_CXX_COMPILER="$(llvm_tool clang++)"
# Most of the time goes into the headers of Qt, so the sources are read as they are joined for compiling.
joined() { sed -nE 's|^ *"file": "(.*/Unity/.*)",?$|\1|p' build/tidy/compile_commands.json; }
if [ $# -gt 0 ]; then sources=("$@"); else mapfile -t sources < <(joined); fi
[ ${#sources[@]} -gt 0 ] || die "there is nothing to read"
printf '%s\0' "${sources[@]}" |
  xargs -0 -n 1 -P "$jobs" "$(llvm_tool clang-tidy)" -p build/tidy --quiet --warnings-as-errors='*' \
    2> >(grep -vE '^[0-9]+ warnings? (generated|treated)' >&2)
