#!/usr/bin/env bash
# Shows that the rtl-only build, which must be built, neither found nor read nor linked anything of Qt Gui or Widgets.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

tree=$root/build/rtl-only
[ -f "$tree/CMakeCache.txt" ] || die "build the rtl-only preset first"

found=$(grep -E '^Qt6(Gui|Widgets)_DIR:[A-Z]+=/' "$tree/CMakeCache.txt" || true)
[ -z "$found" ] || die "the configuration found $found"

headers=$(ninja -C "$tree" -t deps | grep -oE '[^ ]*/Qt(Gui|Widgets)/[^ ]*' | sort -u || true)
[ -z "$headers" ] || die "headers were included: $headers"

checked=0
for program in "$tree"/bin/* "$tree"/src/rtl/libkt_rtl.so; do
  [ -f "$program" ] || continue
  needed=$(readelf -d "$program" | grep -oE 'libQt6(Gui|Widgets)[^]]*' || true)
  [ -z "$needed" ] || die "${program##*/} is linked to $needed"
  checked=$((checked + 1))
done
[ "$checked" -gt 0 ] || die "no program was built"
say "$checked program(s) of the rtl-only build know nothing of Qt Gui and Widgets"
