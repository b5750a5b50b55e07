#!/usr/bin/env bash
# Installs what is missing, builds the debug preset (assertions on) and runs the tests.
# Use: ./test.sh [CTEST ARGUMENT]...    for example ./test.sh -R Strings.   KT_NO_INSTALL=1 installs nothing;
# KT_TESTS_IN_HALVES=ON has each test program run as two tests instead of one for each case, which takes a fifth of the time.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

install_missing "${build_packages[@]}"
say "Building the tests (debug) ..."
configure debug -D KT_TESTS_IN_HALVES="${KT_TESTS_IN_HALVES:-OFF}"
build debug
say "Running the tests ..."
run_tests debug "$@"
