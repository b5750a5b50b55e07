#!/usr/bin/env bash
# Line and branch coverage of the tests, per folder of src; fails where a gate is missed (scripts/coverage-gates.py).
# Use: scripts/coverage.sh [--html]    --html also writes build/coverage/html/index.html
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

install_missing "${build_packages[@]}" gcovr
tree=$root/build/coverage
# Coverage notes name the folder they were compiled in, so a compiler cache could hand out somebody else's.
export CCACHE_DISABLE=1
say "Building the tests (coverage) ..."
configure coverage
build coverage
find "$tree" -name '*.gcda' -delete
say "Running the tests ..."
run_tests coverage

report=(--json-summary "$tree/coverage.json")
if [ "${1:-}" = --html ]; then
  mkdir -p "$tree/html"
  report+=(--html-details "$tree/html/index.html")
fi
gcovr --root "$root" --filter "$root/src/" --exclude-throw-branches --exclude-unreachable-branches \
  -j "$jobs" "${report[@]}" "$tree"
"$root/scripts/coverage-gates.py" "$tree/coverage.json"
