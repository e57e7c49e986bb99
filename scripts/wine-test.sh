#!/usr/bin/env bash
# Builds everything for Windows and runs its tests under Wine: scripts/wine-test.sh [OPTION of ctest...]
#
#   scripts/wine-test.sh                    everything
#   scripts/wine-test.sh -L windows         suites for Windows only
#   scripts/wine-test.sh -R tst_files       suites whose name matches
#   scripts/wine-test.sh --build            builds, and runs nothing
#
# Exits with the exit code of ctest.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"
# shellcheck source=wineprefix.sh
source "$(dirname "${BASH_SOURCE[0]}")/wineprefix.sh"

# Pictures of the desktop program stay in build/windows-cross/pictures.
tests_under_wine() {
    trap end_wine EXIT
    provide_wine_prefix
    export QUORVEX_TEST_PICTURES=$root/build/windows-cross/pictures
    # shellcheck disable=SC2016  # for the inner shell
    xvfb-run --auto-servernum bash -c '
        source "$0/scripts/lib.sh"
        source "$0/scripts/wineprefix.sh"
        start_wine
        run_tests windows-cross "$@"' "$root" "$@"
}

step "packages" install_packages "${packages_build[@]}" "${packages_windows[@]}" "${packages_wine[@]}"
step "Qt for Windows" "$root/scripts/windows-qt.sh"
step "build (windows-cross)" build windows-cross
if [[ ${1:-} != --build ]]; then
    step "tests (windows-cross)" tests_under_wine "$@"
fi
