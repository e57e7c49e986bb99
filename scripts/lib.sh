# shellcheck shell=bash
# Common functions of run.sh, test.sh, .ci/run and the other scripts; only to be sourced.
set -euo pipefail
export LC_ALL=C.UTF-8

# Used by the scripts that source this file.
# shellcheck disable=SC2034
{
    root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

    # qt6-tools-dev contains the CMake package that finds the translation tools of qt6-l10n-tools.
    packages_build=(cmake ninja-build g++ qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6sql6-sqlite
        qt6-l10n-tools qt6-tools-dev qt6-tools-dev-tools)
    # The program's icon, drawn at build time.
    packages_build+=(librsvg2-bin icoutils)
    # For test drives: mkfs of three file systems, losetup (in "mount"), and libfuse for the project's file system that
    # injects faults.
    packages_test=(e2fsprogs xfsprogs btrfs-progs util-linux mount libfuse3-dev fuse3 pkg-config)
    # The tests start their own message bus.
    packages_test+=(dbus-daemon)
    # An independent PDF reader.
    packages_test+=(poppler-utils)
    # A virtual screen.
    packages_test+=(xvfb)
    packages_ci=(git clang-format shellcheck python3)
    # This version does not apply its checks to Qt's headers again for every file, and takes a third of the time.
    packages_ci+=(clang-tidy-22)
    # Besides the compiler: the sanitizers with the fuzzing loop, and the tool that resolves stack addresses to lines.
    packages_fuzz=(clang libclang-rt-dev llvm)
    # Qt from source. Its source package does not contain SQLite.
    packages_qt_source=(cmake ninja-build g++ dpkg-dev libsqlite3-dev qt6-base-dev)
    # The cross compilers; tcl is needed to build SQLite's amalgamated source file. The Qt tools that run on the build
    # machine are in packages_build.
    packages_windows=(g++-mingw-w64-x86-64-posix tcl make qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools)
    packages_wine=(wine wine64 xvfb xauth fonts-noto-cjk fonts-dejavu-core)
    # The laboratory's machine, and what the system in it makes on its drives.
    packages_lab=(qemu-system-x86 busybox-static cpio kmod python3 mdadm lvm2 cryptsetup-bin dmsetup util-linux mount
        dosfstools ntfs-3g e2fsprogs xfsprogs btrfs-progs)
    # One typeface for all eleven languages, the pictures on buttons, and the letters of the seal on a certificate.
    packages_fonts=(fonts-noto-cjk fonts-noto-color-emoji fonts-dejavu-core)
}

fail() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# step NAME COMMAND [ARGUMENT...]: prints the step, and its name after a failure. The command may be a function. Must be
# called as a plain statement, because behind "if", "&&" or "||" bash ignores failures inside it.
steps_done=()
step() {
    local name=$1 began=$SECONDS status
    shift
    printf '\n==> %s\n' "$name"
    set +e
    (
        set -e
        "$@"
    )
    status=$?
    set -e
    if ((status != 0)); then
        printf "error: step '%s' failed (exit %d, after %d s)\n" "$name" "$status" $((SECONDS - began)) >&2
        exit 1
    fi
    steps_done+=("$(printf '%-28s %5d s' "$name" $((SECONDS - began)))")
    printf '<== %s\n' "${steps_done[-1]}"
}

# beside NAME COMMAND [ARGUMENT...]: runs a step in parallel with the following ones; beside_done waits for it and
# prints its output. One at a time.
beside() {
    beside_name=$1
    beside_began=$SECONDS
    shift
    beside_log=$(mktemp)
    printf '\n==> %s (beside the next steps)\n' "$beside_name"
    "$@" >"$beside_log" 2>&1 &
    beside_process=$!
    # A failure of another step ends this one too.
    trap 'kill "$beside_process" 2>/dev/null' EXIT
}

beside_done() {
    local status=0
    wait "$beside_process" || status=$?
    trap - EXIT
    cat "$beside_log"
    rm -f "$beside_log"
    if ((status != 0)); then
        printf "error: step '%s' failed (exit %d)\n" "$beside_name" "$status" >&2
        exit 1
    fi
    steps_done+=("$(printf '%-28s %5d s, beside others' "$beside_name" $((SECONDS - beside_began)))")
    printf '<== %s\n' "${steps_done[-1]}"
}

# One compiler per processor, limited by memory, since a Qt source file takes up to 1.5 GB with a sanitizer.
jobs_count() {
    local processors memory_kb by_memory
    processors=$(nproc)
    memory_kb=$(awk '$1 == "MemAvailable:" { print $2 }' /proc/meminfo)
    by_memory=$((memory_kb / 1500000))
    ((by_memory >= 1)) || by_memory=1
    echo $((processors < by_memory ? processors : by_memory))
}

as_root() {
    if [[ $(id -u) == 0 ]]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        printf 'error: this needs root, and there is no sudo: %s\n' "$*" >&2
        return 1
    fi
}

missing_packages() {
    local package
    for package in "$@"; do
        # dpkg-query prints one line for each architecture that has the package; one installed is enough.
        dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || echo "$package"
    done
}

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install --yes --no-install-recommends \
        -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=600 "$@"
}

# install_packages PACKAGE...: prints nothing when all are installed.
install_packages() {
    local missing log
    command -v dpkg-query >/dev/null || fail "step 'install packages' failed: this script installs Debian packages"
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} > 0)) || return 0
    printf 'Installing %s\n' "${missing[*]}"
    log=$(mktemp)
    # Package lists may be missing, or name files that the mirror has replaced since, so a failure is retried with new
    # lists.
    if ! apt_install "${missing[@]}" >"$log" 2>&1 &&
        ! { as_root apt-get update && apt_install "${missing[@]}"; } >"$log" 2>&1; then
        tail -n 30 "$log" >&2
        rm -f "$log"
        fail "step 'install packages' failed: ${missing[*]}"
    fi
    rm -f "$log"
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} == 0)) || fail "step 'install packages' failed: still missing: ${missing[*]}"
}

# build PRESET [OPTION of cmake --build...]
build() {
    local preset=$1
    shift
    cd "$root"
    if command -v ccache >/dev/null; then
        # Without CCACHE_SLOPPINESS ccache stores no object that uses a precompiled header.
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
        export CCACHE_SLOPPINESS=pch_defines,time_macros
    fi
    cmake --preset "$preset" --log-level=NOTICE
    cmake --build --preset "$preset" --parallel "$(jobs_count)" "$@"
}

# run_tests PRESET [OPTION of ctest...]: keeps the last lines of ctest in build/PRESET/ctest.log, and prints the reasons
# of skipped tests, because ctest shows no output of passed programs. Runs twice as many suites as processors, because
# suites wait for media, timers and processes half of the time.
run_tests() {
    local preset=$1 status=0
    shift
    cd "$root"
    ctest --preset "$preset" --parallel $(($(nproc) * 2)) "$@" 2>&1 | tee "build/$preset/ctest.log" || status=$?
    if ((status != 0)); then
        failed_tests "$preset"
        return "$status"
    fi
    skipped_tests "$preset"
}

# Prints the failures of suites again. A suite prints thousands of lines, and the end of the log does not show the
# failures.
failed_tests() {
    local log="$root/build/$1/Testing/Temporary/LastTest.log"
    [[ -f $log ]] || return 0
    printf '\nWhy they failed:\n'
    grep -E -m 25 -A 3 '^(FAIL!|XPASS|QFATAL) |: runtime error: |(ERROR|WARNING): [A-Za-z]+Sanitizer' "$log" |
        tr -d '\r' || printf '  nothing in the log says so\n'
}

# With CI=true only the tests in tests/allowed-skips.txt may be skipped.
skipped_tests() {
    local preset=$1 log="$root/build/$1/Testing/Temporary/LastTest.log" line skipped refused=()
    [[ -f $log ]] || return 0
    mapfile -t skipped < <(
        sed -nE 's/^SKIP *: //p' "$log" | tr -d '\r'
        sed -nE 's/^ *[0-9]+\/[0-9]+ Test +#[0-9]+: ([^ ]+) .*\*\*\*Skipped.*/\1/p' "$root/build/$preset/ctest.log"
    )
    ((${#skipped[@]} > 0)) || return 0
    printf '\nSkipped, and so not tested:\n'
    printf '  %s\n' "${skipped[@]}"
    [[ ${CI:-} == true ]] || return 0
    for line in "${skipped[@]}"; do
        is_allowed_skip "$preset" "$line" || refused+=("$line")
    done
    ((${#refused[@]} == 0)) ||
        fail "$(printf 'what nothing excuses in tests/allowed-skips.txt was skipped:\n' && printf '  %s\n' "${refused[@]}")"
}

# is_allowed_skip PRESET LINE
is_allowed_skip() {
    local preset pattern
    while read -r preset pattern; do
        [[ $preset != '#'* && -n $pattern ]] || continue
        # The right-hand sides are patterns.
        # shellcheck disable=SC2053
        [[ $1 == $preset && $2 == $pattern ]] && return 0
    done <"$root/tests/allowed-skips.txt"
    return 1
}

# The line "N% tests passed, N tests failed out of N" of the last run of a preset.
tests_result() {
    grep -E '^[0-9]+% tests passed' "$root/build/$1/ctest.log"
}
