#!/usr/bin/env bash
# Checks an optional folder of sample forms beside the source tree with the ktform of the release build.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

cd "$root"
shopt -s nullglob
forms=(../shared/forms/*.?fm)
if [ ${#forms[@]} -eq 0 ]; then
  say "no folder ../shared/forms: nothing to check"
  exit 0
fi
if [ ! -d tools/ktform ]; then
  say "no ktform in this tree yet: nothing to check with"
  exit 0
fi
log=build/release/forms.log
if ! build/release/bin/ktform check "${forms[@]}" >"$log" 2>&1; then
  cat "$log" >&2
  die "ktform check found faults"
fi
say "${#forms[@]} forms: ok"
