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
# What a form may lack is an error that is told; anything else, as a crash, is a fault.
for form in "${forms[@]}"; do
  status=0
  build/release/bin/ktform set "$form" build/release/set.form Tag=77 >"$log" 2>&1 || status=$?
  if [ "$status" -gt 1 ]; then
    cat "$log" >&2
    die "ktform set ended with $status over $form"
  fi
done
rm -f build/release/set.form
say "${#forms[@]} forms: ok"
