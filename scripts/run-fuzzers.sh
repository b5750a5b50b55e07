#!/usr/bin/env bash
# Runs every fuzz target of the fuzz build over its corpus: without an argument a fixed number of inputs from a fixed seed,
# so that the same program always gives the same answer; with SECONDS, new inputs for so long, which is how faults are
# looked for. New inputs stay in build/fuzz, so that the corpus in the source tree holds only what somebody chose to keep.
# Use: scripts/run-fuzzers.sh [SECONDS]
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

if [ $# -gt 0 ]; then how_long="-max_total_time=$1"; else how_long="-seed=1 -runs=5000"; fi
export KT_FUZZ_HOW_LONG=$how_long KT_ROOT=$root
shopt -s nullglob
targets=("$root"/build/fuzz/bin/fuzz_*)
if [ ${#targets[@]} -eq 0 ]; then
  say "no fuzz target in build/fuzz/bin: nothing to run"
  exit 0
fi

run_target() {
  set -euo pipefail
  local target=$1 name=${1##*/} work corpus
  work=$KT_ROOT/build/fuzz/run/$name
  corpus=$KT_ROOT/fuzz/corpus/$name
  [ -d "$corpus" ] || { echo "$name: no corpus in fuzz/corpus/$name" >&2; return 1; }
  rm -rf "$work"
  mkdir -p "$work/found"
  # Inputs have at most some kilobytes, and no single request for memory may be far beyond them. Of the whole, most is
  # what the address sanitizer keeps of freed blocks.
  read -r -a how_long <<<"$KT_FUZZ_HOW_LONG"
  if ! "$target" "${how_long[@]}" -timeout=10 -malloc_limit_mb=16 -rss_limit_mb=768 -print_final_stats=1 \
    -artifact_prefix="$work/" "$work/found" "$corpus" >"$work/log" 2>&1; then
    tail -n 60 "$work/log" >&2
    echo "$name failed; the input is in $work" >&2
    return 1
  fi
  echo "$name: $(find "$corpus" -type f | wc -l) seeds," \
    "$(sed -n 's/^stat::number_of_executed_units: *//p' "$work/log") runs, no fault"
}
export -f run_target
printf '%s\0' "${targets[@]}" | xargs -0 -n 1 -P "$jobs" bash -c 'run_target "$1"' run_target
