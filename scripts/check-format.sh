#!/usr/bin/env bash
# Fails when a tracked C++ file is not formatted. With --fix, formats them instead.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

cd "$root"
mode=(--dry-run -Werror)
[ "${1:-}" != --fix ] || mode=(-i)
git ls-files -z '*.cpp' '*.h' | xargs -0 -r -n 32 -P "$jobs" "$(llvm_tool clang-format)" "${mode[@]}"
