#!/usr/bin/env bash
# Builds the parts of Qt that the tests need for the thread sanitizer, once, and links them as .cache/qt-tsan, where the
# preset "tsan" looks. Debian's own Qt is not instrumented. The sanitizer cannot see how it passes a queued signal
# between threads, and would report a race for each.
#
# Building takes about five minutes on two processors and 2 GB of temporary disk space.
# shellcheck source=qtsource.sh
source "$(dirname "${BASH_SOURCE[0]}")/qtsource.sh"

options=(
    "${qt_common_options[@]}"
    -DCMAKE_BUILD_TYPE=RelWithDebInfo
    # Line numbers for the sanitizer's reports; full debug information would be several times larger.
    "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -g1 -DNDEBUG"
    "-DCMAKE_C_FLAGS_RELWITHDEBINFO=-O1 -g1 -DNDEBUG"
    # The installed moc and other tools are used.
    -DQT_HOST_PATH=/usr
    -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake
    -DQT_FORCE_FIND_TOOLS=ON
    -DFEATURE_sanitizer=ON
    -DFEATURE_sanitize_thread=ON
    -DFEATURE_separate_debug_info=OFF
    -DBUILD_WITH_PCH=OFF
    -DFEATURE_gui=OFF
    # GLib's event loop, ICU and similar libraries would again be uninstrumented code between two threads.
    -DFEATURE_glib=OFF
    -DFEATURE_icu=OFF
    -DFEATURE_zstd=OFF
    -DFEATURE_system_pcre2=OFF
    -DFEATURE_system_zlib=OFF
    -DFEATURE_system_doubleconversion=OFF
    -DFEATURE_system_libb2=OFF
    -DFEATURE_system_sqlite=ON
)

build_instrumented_qt() {
    build_qt "${options[@]}"
    # Qt silently ignores unknown options.
    local library
    for library in Core Concurrent Sql Test; do
        # Not grep -q, because it would close the pipe early, and the failed write of nm would count as a failure.
        nm -D "$work/stage$prefix/lib/libQt6$library.so.6" | grep ' U __tsan_' >/dev/null ||
            fail "Qt $library was built without the thread sanitizer"
    done
    [[ -e $work/stage$prefix/plugins/sqldrivers/libqsqlite.so ]] || fail "Qt was built without SQLite"
}

install_packages "${packages_qt_source[@]}" qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools
provide_qt qt-tsan "Qt for the thread sanitizer" five build_instrumented_qt "g++ $(g++ -dumpfullversion)" "${options[@]}"
