#!/usr/bin/env bash
# Runs the tests on a build that counts which lines run, and prints the lines covered of each layer on Linux:
# scripts/coverage.sh [--no-tests] [OPTION of ctest...]
#
#   scripts/coverage.sh                  builds, runs every suite, prints the tables
#   scripts/coverage.sh -R wipeengine    counts only what suites with such a name run, and so finds little covered
#   scripts/coverage.sh --no-tests       prints the tables of what has been counted so far
#
# Fails when a layer is below its limit. The window is for information. Not a part of .ci/run: it takes several minutes.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
cd "$root"

counts=build/coverage/lines.json

forget_counts() {
    find build/coverage -name '*.gcda' -delete
}

# A suite that is killed on purpose writes no counts; two processes that end at the same time wait for each other.
collect_counts() {
    gcovr --root . --object-directory build/coverage --filter 'src/' --exclude '.*/moc_.*' \
        -j "$(jobs_count)" --json "$counts" build/coverage/src build/coverage/tests
}

tests=1
if [[ ${1:-} == --no-tests ]]; then
    tests=0
    shift
fi
if ((tests)); then
    step "packages" install_packages "${packages_build[@]}" "${packages_test[@]}" "${packages_fonts[@]}" gcovr python3
    step "build (coverage)" build coverage
    step "old counts" forget_counts
    step "tests (coverage)" run_tests coverage "$@"
fi
step "counts" collect_counts
scripts/coverage-table.py "$counts" tests/coverage-exceptions.txt
