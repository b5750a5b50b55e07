#!/usr/bin/env bash
# Builds and runs projects as users of the package have them, against the install tree of the release build with shared
# and with static libraries, and with the source tree embedded: tests/consumer, which wants the runtime alone where no Qt
# Gui or Widgets can be found, and the programs that README.md shows. Also asks for what must not be found.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

work=$root/build/consumer
readme=$work/readme
no_gui=(-D CMAKE_DISABLE_FIND_PACKAGE_Qt6Gui=ON -D CMAKE_DISABLE_FIND_PACKAGE_Qt6Widgets=ON)
rm -rf "$work"
mkdir -p "$readme"

# readme_blocks LANGUAGE: what stands between the fences of that language in the section about one's own project.
readme_blocks() {
  sed -n '/^## In your own project/,/^## /p' "$root/README.md" | sed -n "/^\`\`\`$1\$/,/^\`\`\`\$/p" | sed '/^```/d'
}

# The first line of each C++ program names its file.
extract_readme() {
  readme_blocks cmake >"$readme/CMakeLists.txt"
  readme_blocks cpp | awk -v folder="$readme/" '/^\/\/ [a-z]+\.cpp:/ { file = folder substr($2, 1, length($2) - 1) } { print >file }'
  local program
  for program in lamps widgets watts; do
    [ -s "$readme/$program.cpp" ] || die "README.md no longer has the program $program"
  done
}

# configures SOURCE NAME OPTION...: configures a project in $work/NAME; the output goes to $work/NAME.log.
configures() {
  local source=$1 name=$2
  shift 2
  cmake -S "$source" -B "$work/$name" -G Ninja -D CMAKE_BUILD_TYPE=Debug "$@" >"$work/$name.log" 2>&1
}

# builds SOURCE NAME OPTION...: also builds $target.
target=all
builds() {
  if ! configures "$@" || ! cmake --build "$work/$2" --target "$target" --parallel "$jobs" >>"$work/$2.log" 2>&1; then
    cat "$work/$2.log" >&2
    die "the project does not build ($2)"
  fi
}

consumer_works() {
  local name=$1 output
  builds "$root/tests/consumer" "$@"
  output=$("$work/$name/consumer") || die "the consumer program fails ($name)"
  [ "$output" = "$(cat "$root/tests/consumer/expected.txt")" ] || die "the consumer program printed '$output' ($name)"
  say "consumer, $name: ok"
}

# Windows stay until they are closed, so the time they are given must run out.
readme_works() {
  local name=readme-$1 program status
  shift
  builds "$readme" "$name" "$@"
  "$work/$name/watts" || die "the program watts of README.md fails ($name)"
  for program in lamps widgets; do
    status=0
    QT_QPA_PLATFORM=offscreen timeout 2 "$work/$name/$program" >"$work/$name.out" 2>&1 || status=$?
    [ "$status" = 124 ] || { cat "$work/$name.out" >&2; die "the program $program of README.md ends with $status ($name)"; }
  done
  say "consumer, $name: ok"
}

# is_refused NAME TEXT OPTION...: the configuration must fail and must say TEXT.
is_refused() {
  local name=$1 text=$2
  shift 2
  ! configures "$root/tests/consumer" "$name" "$@" || die "the consumer project should not configure ($name)"
  tr -s ' \n' ' ' <"$work/$name.log" | grep -qF "$text" || { cat "$work/$name.log" >&2; die "no '$text' ($name)"; }
  say "consumer, $name: refused"
}

install_release() {
  configure release -D BUILD_SHARED_LIBS="$2"
  build release
  cmake --install "$root/build/release" --prefix "$work/$1" >"$work/$1.install.log"
}

extract_readme
# Static comes last: it is the default, and so the release build is left as it was found.
for kind in shared=ON static=OFF; do
  install_release "${kind%=*}-install" "${kind#*=}"
  consumer_works "${kind%=*}" -D CMAKE_PREFIX_PATH="$work/${kind%=*}-install" "${no_gui[@]}"
  readme_works "${kind%=*}" -D CMAKE_PREFIX_PATH="$work/${kind%=*}-install"
done

installed=(-D CMAKE_PREFIX_PATH="$work/static-install")
consumer_works optional "${installed[@]}" "${no_gui[@]}" -D KT_FIND_COMPONENTS='rtl;OPTIONAL_COMPONENTS;inspector;nosuch'
is_refused all-without-widgets 'kt::vcl needs Qt6::Widgets 6.4, which was not found' \
  "${installed[@]}" "${no_gui[@]}" -D KT_FIND_COMPONENTS=
is_refused one-without-widgets 'kt::vcl needs Qt6::Widgets 6.4, which was not found' \
  "${installed[@]}" "${no_gui[@]}" -D KT_FIND_COMPONENTS=inspector
is_refused unknown-component 'kt::nosuch is not among the installed libraries: rtl, vcl, inspector, qobjects' \
  "${installed[@]}" -D KT_FIND_COMPONENTS='rtl;nosuch'
is_refused later-version 'compatible with requested version "99.0"' "${installed[@]}" -D KT_FIND_VERSION=99.0
# Of what it embeds, somebody's project builds what it links.
target=consumer
consumer_works embedded -D KT_SOURCE_TREE="$root" -D CMAKE_UNITY_BUILD=ON
