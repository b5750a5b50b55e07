# What the scripts share; sourced, never run. Sets `root` to the top of the source tree and `jobs` to the number of cores.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc 2>/dev/null || echo 2)

# What a build needs, by the names that Debian 12 and Ubuntu 24.04 both use.
# The example uiview wants Qt's loader of forms, whose CMake package asks for OpenGL's; a build does without them.
ui_packages=(qt6-tools-dev libqt6opengl6-dev)
build_packages=(cmake ninja-build g++ qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev ccache "${ui_packages[@]}")

# What only the checks beyond the tests need. Fixed to one version of the LLVM tools: another one formats otherwise.
check_packages=(clang-14 clang-format-14 clang-tidy-14 libclang-rt-14-dev)

say() { printf '%s\n' "$*"; }
die() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# llvm_tool NAME: the tool's version that the project is checked with, else whatever version there is.
llvm_tool() {
  command -v "$1-14" || command -v "$1" || die "there is no $1"
}

is_installed() { [ "$(dpkg-query -W -f '${db:Status-Abbrev}' "$1" 2>/dev/null)" = 'ii ' ]; }

# install_missing PACKAGE...: installs what is not there yet; asks nothing of apt when all is. KT_NO_INSTALL=1 leaves it out.
install_missing() {
  local package log
  local -a missing=()
  [ "${KT_NO_INSTALL:-0}" != 1 ] || return 0
  command -v dpkg-query >/dev/null ||
    die "this is no Debian or Ubuntu: install the equivalents of '$*' yourself and set KT_NO_INSTALL=1"
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null ||
    die "needs root or sudo to install ${missing[*]} (or install them yourself and set KT_NO_INSTALL=1)"
  say "Installing ${missing[*]} ..."
  log=$(mktemp)
  if ! { as_root apt-get -qq -o DPkg::Lock::Timeout=300 update &&
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o DPkg::Lock::Timeout=300 \
      install --no-install-recommends "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    rm -f "$log"
    die "could not install ${missing[*]}"
  fi
  rm -f "$log"
}

# configure PRESET [OPTION]...: configures build/PRESET; prints cmake's output only when it fails.
configure() {
  local preset=$1 log=$root/build/$1/configure.log
  shift
  mkdir -p "${log%/*}"
  if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] && command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
  fi
  if ! (cd "$root" && cmake --preset "$preset" "$@") >"$log" 2>&1; then
    cat "$log" >&2
    die "could not configure the $preset build"
  fi
}

# build PRESET [TARGET]...: builds on all cores; on a terminal with ninja's progress line, else only errors are printed.
build() {
  local preset=$1
  local -a arguments=(--build "$root/build/$1" --parallel "$jobs")
  shift
  [ $# -eq 0 ] || arguments+=(--target "$@")
  if [ -t 1 ]; then
    cmake "${arguments[@]}" || die "the $preset build failed"
  else
    cmake "${arguments[@]}" -- --quiet | sed '/^ninja: no work to do.$/d' || die "the $preset build failed"
  fi
}

# has_target PRESET TARGET: whether the configured build knows the target.
has_target() { cmake --build "$root/build/$1" --target help | grep -qE "^$2: phony$"; }

# run_tests PRESET [CTEST ARGUMENT]...: on a terminal one line that moves on, else only failures and the summary.
run_tests() {
  local preset=$1
  local -a command=(ctest --preset "$1" --no-tests=error --parallel "$jobs")
  shift
  cd "$root"
  if [ -t 1 ]; then
    "${command[@]}" --progress "$@"
  else
    "${command[@]}" "$@" | grep -vE '^ +Start +[0-9]+: |^ *[0-9]+/[0-9]+ Test +#.* Passed '
  fi
}
