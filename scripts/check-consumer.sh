#!/usr/bin/env bash
# Builds and runs the project in tests/consumer as a user of the package would: against the install tree of the release
# build with shared and with static libraries, and with the source tree embedded. Also asks for what must not be found.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$root/build/consumer
rm -rf "$work"
mkdir -p "$work"

# consumer_configures NAME OPTION...: configures the consumer project in $work/NAME; the output goes to $work/NAME.log.
consumer_configures() {
  local name=$1
  shift
  cmake -S "$root/tests/consumer" -B "$work/$name" -G Ninja -D CMAKE_BUILD_TYPE=Debug "$@" >"$work/$name.log" 2>&1
}

consumer_works() {
  local name=$1 output
  if ! consumer_configures "$@" || ! cmake --build "$work/$name" --parallel "$jobs" >>"$work/$name.log" 2>&1; then
    cat "$work/$name.log" >&2
    die "the consumer project does not build ($name)"
  fi
  output=$("$work/$name/consumer") || die "the consumer program fails ($name)"
  [ "$output" = "$(cat "$root/tests/consumer/expected.txt")" ] || die "the consumer program printed '$output' ($name)"
  say "consumer, $name: ok"
}

# consumer_is_refused NAME TEXT OPTION...: the configuration must fail and must say TEXT.
consumer_is_refused() {
  local name=$1 text=$2
  shift 2
  ! consumer_configures "$name" "$@" || die "the consumer project should not configure ($name)"
  tr -s ' \n' ' ' <"$work/$name.log" | grep -qF "$text" || { cat "$work/$name.log" >&2; die "no '$text' ($name)"; }
  say "consumer, $name: refused"
}

install_release() {
  configure release -D BUILD_SHARED_LIBS="$2"
  build release
  cmake --install "$root/build/release" --prefix "$work/$1" >"$work/$1.install.log"
}

# Static comes last: it is the default, and so the release build is left as it was found.
for kind in shared=ON static=OFF; do
  install_release "${kind%=*}-install" "${kind#*=}"
  consumer_works "${kind%=*}" -D CMAKE_PREFIX_PATH="$work/${kind%=*}-install"
done
consumer_is_refused unknown-component 'kt::nosuch is not among the installed libraries' \
  -D CMAKE_PREFIX_PATH="$work/static-install" -D KT_FIND_COMPONENTS='rtl;nosuch'
consumer_is_refused later-version 'compatible with requested version "99.0"' \
  -D CMAKE_PREFIX_PATH="$work/static-install" -D KT_FIND_VERSION=99.0
consumer_works embedded -D KT_SOURCE_TREE="$root"
