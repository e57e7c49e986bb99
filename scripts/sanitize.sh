#!/usr/bin/env bash
# Builds and runs the tests with sanitizers: scripts/sanitize.sh asan|tsan [OPTION of ctest...]
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

preset=${1:-}
[[ $preset == asan || $preset == tsan ]] || fail "which sanitizer? asan or tsan"

# The sanitizers place their shadow memory at fixed addresses. When the kernel randomises mappings by more than 28 bits,
# a mapping sometimes overlaps it, and the program ends before main().
if [[ -z ${QUORVEX_FIXED_ADDRESSES:-} ]] && (($(cat /proc/sys/vm/mmap_rnd_bits 2>/dev/null || echo 28) > 28)); then
    QUORVEX_FIXED_ADDRESSES=1 exec setarch "$(uname -m)" --addr-no-randomize "$0" "$@"
fi
shift

export UBSAN_OPTIONS=print_stacktrace=1
# A suite with threads may fork a child program.
export TSAN_OPTIONS=second_deadlock_stack=1:die_after_fork=0

step "packages" install_packages "${packages_build[@]}" "${packages_test[@]}" "${packages_fonts[@]}"
if [[ $preset == tsan ]]; then
    step "Qt for the thread sanitizer" "$root/scripts/tsan-qt.sh"
fi
# Only the programs of the tests, without bench and gallery.
step "build ($preset)" build "$preset" --target quorvex_tests
step "tests ($preset)" run_tests "$preset" "$@"
