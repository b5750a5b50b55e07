#!/usr/bin/env bash
# Installs what is missing, builds the debug preset (assertions on) and runs the tests.
# Use: ./test.sh [CTEST ARGUMENT]...    for example ./test.sh -R rtl_tests   KT_NO_INSTALL=1 installs nothing;
# Each test program runs as two tests; KT_TESTS_IN_HALVES=OFF makes each test case one, for -R, and takes five times as long.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

install_missing "${build_packages[@]}"
say "Building the tests (debug) ..."
configure debug -D KT_TESTS_IN_HALVES="${KT_TESTS_IN_HALVES:-ON}"
build debug
say "Running the tests ..."
run_tests debug "$@"
