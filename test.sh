#!/usr/bin/env bash
# Installs what is missing, builds everything with assertions and runs every test.
# shellcheck source=scripts/lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/scripts/lib.sh"

if [[ ${1:-} == --help || ${1:-} == -h ]]; then
    cat <<'TEXT'
Usage: ./test.sh [OPTION of ctest...]

Installs missing packages, builds the preset "dev" into build/dev and runs all tests.

  ./test.sh                 everything
  ./test.sh -L unit         one label: unit, contract, fault, residue, cli, gui
  ./test.sh -R wipemethod   tests whose name matches

Some tests attach loop devices and mount file systems of their own, and need root for it. No drive that a test
did not create itself is ever opened.
TEXT
    exit 0
fi

step "packages" install_packages "${packages_build[@]}" "${packages_test[@]}" "${packages_fonts[@]}"
step "build (dev)" build dev
if [[ $(id -u) != 0 ]]; then
    printf '\nNot root: tests that need loop devices will be skipped.\n'
fi
step "tests (dev)" run_tests dev "$@"
printf '\n'
tests_result dev
