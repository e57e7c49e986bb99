#!/usr/bin/env bash
# Builds the parts of Qt that the tests need for the thread sanitizer, once, and links them as .cache/qt-tsan, where
# the preset "tsan" looks. Debian's own Qt is not instrumented: the sanitizer does not see how it hands a queued
# signal from thread to thread, and would report a race for each.
#
# The result lies outside the checkout, in ${QUORVEX_CACHE:-${XDG_CACHE_HOME:-~/.cache}/quorvex}/qt-tsan-<key>, so that
# the next clone finds it. Building takes about ten minutes on two processors and 4 GB of disk space meanwhile.
# shellcheck source=lib.sh
source "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

options=(
    -G Ninja
    -Wno-dev
    -DCMAKE_BUILD_TYPE=RelWithDebInfo
    # Line numbers for the sanitizer's reports; full debug information would be several times as large.
    "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O2 -g1 -DNDEBUG"
    "-DCMAKE_C_FLAGS_RELWITHDEBINFO=-O2 -g1 -DNDEBUG"
    -DFEATURE_sanitizer=ON
    -DFEATURE_sanitize_thread=ON
    -DFEATURE_separate_debug_info=OFF
    -DBUILD_WITH_PCH=OFF
    -DQT_BUILD_EXAMPLES=OFF
    -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_BENCHMARKS=OFF
    -DFEATURE_gui=OFF
    -DFEATURE_network=OFF
    -DFEATURE_dbus=OFF
    # GLib's event loop, ICU and the like would be uninstrumented code between two threads again.
    -DFEATURE_glib=OFF
    -DFEATURE_icu=OFF
    -DFEATURE_zstd=OFF
    -DFEATURE_system_pcre2=OFF
    -DFEATURE_system_zlib=OFF
    -DFEATURE_system_doubleconversion=OFF
    -DFEATURE_system_libb2=OFF
    -DFEATURE_system_sqlite=ON
    -DFEATURE_sql_mysql=OFF
    -DFEATURE_sql_psql=OFF
    -DFEATURE_sql_odbc=OFF
    -DFEATURE_sql_oci=OFF
    -DFEATURE_sql_db2=OFF
    -DFEATURE_sql_ibase=OFF
)

link_into_checkout() {
    mkdir -p "$root/.cache"
    ln -sfn "$prefix" "$root/.cache/qt-tsan"
}

# The archives that this computer installs from, as source archives, in a list and folders of our own: nothing in
# /etc/apt is changed, and no root is needed.
fetch_source() {
    # The names in round brackets are apt's, not the shell's.
    # shellcheck disable=SC2016
    local line='deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(REPO_URI) $(RELEASE) $(COMPONENT)'
    local filters=('Created-By: Packages' 'Origin: Debian')
    mkdir -p "$work"/apt/{lists/partial,cache/archives/partial} "$work/source"
    apt-get indextargets --format "$line" "${filters[@]}" | sort -u >"$work/apt/sources.list"
    if [[ ! -s $work/apt/sources.list ]]; then
        as_root apt-get update
        apt-get indextargets --format "$line" "${filters[@]}" | sort -u >"$work/apt/sources.list"
    fi
    [[ -s $work/apt/sources.list ]] || fail "apt knows no Debian archive to fetch the source of Qt from"

    # Sandbox: apt would fetch as the user _apt, who may not write into our folder.
    local apt=(apt-get -q
        -o "Dir::Etc::SourceList=$work/apt/sources.list" -o Dir::Etc::SourceParts=-
        -o "Dir::State::Lists=$work/apt/lists" -o "Dir::Cache=$work/apt/cache"
        -o "APT::Sandbox::User=$(id -un)")
    "${apt[@]}" update
    (cd "$work/source" && "${apt[@]}" source "qt6-base=$version")
}

build_qt() {
    fetch_source
    cmake -S "$(echo "$work"/source/qt6-base-*/)" -B "$work/build" -DCMAKE_INSTALL_PREFIX="$prefix" "${options[@]}"
    cmake --build "$work/build" --parallel "$(jobs_count)"
    DESTDIR=$work/stage cmake --install "$work/build"

    # Qt takes an option that it does not know without a word.
    local library
    for library in Core Concurrent Sql Test; do
        # Not grep -q: it would leave nm writing into a closed pipe, which counts as a failure.
        nm -D "$work/stage$prefix/lib/libQt6$library.so.6" | grep ' U __tsan_' >/dev/null ||
            fail "Qt $library was built without the thread sanitizer"
    done
    [[ -e $work/stage$prefix/plugins/sqldrivers/libqsqlite.so ]] || fail "Qt was built without SQLite"
}

install_packages "${packages_qt_source[@]}"
version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
key=$version-$(printf '%s\n' "$(g++ -dumpfullversion)" "${options[@]}" | sha256sum | head -c 12)
home=~
cache=${QUORVEX_CACHE:-${XDG_CACHE_HOME:-$home/.cache}/quorvex}
prefix=$cache/qt-tsan-$key

if [[ -d $prefix ]]; then
    link_into_checkout
    exit 0
fi

mkdir -p "$cache"
exec 9>"$cache/qt-tsan.lock"
if ! flock --nonblock 9; then
    printf 'Waiting for another build of Qt for the thread sanitizer\n'
    flock 9
fi
if [[ ! -d $prefix ]]; then
    # Only the holder of the lock builds, so these are what a killed build left.
    rm -rf "$cache"/qt-tsan-build.*
    work=$(mktemp -d "$cache/qt-tsan-build.XXXXXX")
    trap 'rm -rf "$work"' EXIT
    log=$cache/qt-tsan-build.log
    printf 'Building Qt %s for the thread sanitizer, about ten minutes; log: %s\n' "$version" "$log"
    # In a subshell of its own, since "set -e" does not hold within a condition.
    set +e
    (
        set -e
        build_qt
    ) >"$log" 2>&1
    status=$?
    set -e
    if ((status != 0)); then
        tail -n 40 "$log" >&2
        fail "step 'Qt for the thread sanitizer' failed (exit $status)"
    fi
    mv "$work/stage$prefix" "$prefix"
fi
link_into_checkout
