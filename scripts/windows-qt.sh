#!/usr/bin/env bash
# Cross-builds Qt for Windows x86-64 (Core, Concurrent, Gui, Widgets, PrintSupport, Sql with SQLite, Test), once, and
# links it as .cache/qt-windows, where the preset "windows-cross" looks.
#
# Building takes about twenty minutes on two processors.
# shellcheck source=qtsource.sh
source "$(dirname "${BASH_SOURCE[0]}")/qtsource.sh"

options=(
    "${qt_common_options[@]}"
    -DCMAKE_BUILD_TYPE=Release
    -DQT_HOST_PATH=/usr
    -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake
    -DINPUT_opengl=no
    -DFEATURE_vulkan=OFF
    # Debian's source package lacks the header of the tablet interface, and SQLite.
    -DFEATURE_tabletevent=OFF
    # Image formats that no page uses. (Without Direct2D there would be no DirectWrite, which renders the program's
    # fonts.)
    -DFEATURE_gif=OFF
    -DFEATURE_jpeg=OFF
    # Widgets and dialogs that the program does not use. (The print dialog uses date fields.)
    -DFEATURE_colordialog=OFF
    -DFEATURE_columnview=OFF
    -DFEATURE_datawidgetmapper=OFF
    -DFEATURE_dial=OFF
    -DFEATURE_dockwidget=OFF
    -DFEATURE_errormessage=OFF
    -DFEATURE_fontcombobox=OFF
    -DFEATURE_fontdialog=OFF
    -DFEATURE_keysequenceedit=OFF
    -DFEATURE_lcdnumber=OFF
    -DFEATURE_mdiarea=OFF
    -DFEATURE_printpreviewwidget=OFF
    -DFEATURE_splashscreen=OFF
    -DFEATURE_syntaxhighlighter=OFF
    -DFEATURE_textmarkdownreader=OFF
    -DFEATURE_textmarkdownwriter=OFF
    -DFEATURE_textodfwriter=OFF
    -DFEATURE_toolbox=OFF
    -DFEATURE_undoview=OFF
    -DFEATURE_wizard=OFF
    -DFEATURE_sql_sqlite=ON
    -DFEATURE_system_sqlite=ON
)

build_sqlite() {
    local source
    fetch_source sqlite3
    source=$(echo "$work"/source/sqlite3-*/)
    (cd "$source" && ./configure && make sqlite3.c)
    mkdir -p "$work/sqlite"
    cp "$source"/sqlite3.[ch] "$work/sqlite"
    x86_64-w64-mingw32-gcc-posix -O2 -DNDEBUG -DSQLITE_ENABLE_COLUMN_METADATA -c "$work/sqlite/sqlite3.c" \
        -o "$work/sqlite/sqlite3.o"
    x86_64-w64-mingw32-ar rcs "$work/sqlite/libsqlite3.a" "$work/sqlite/sqlite3.o"
}

build_windows_qt() {
    build_sqlite
    build_qt "${options[@]}" \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/windows-cross.cmake" \
        -DSQLite3_INCLUDE_DIR="$work/sqlite" -DSQLite3_LIBRARY="$work/sqlite/libsqlite3.a"
    local file
    for file in bin/Qt6{Core,Concurrent,Gui,Widgets,PrintSupport,Sql,Test}.dll \
        plugins/{platforms/qwindows,platforms/qoffscreen,sqldrivers/qsqlite}.dll; do
        [[ -e $work/stage$prefix/$file ]] || fail "the build of Qt left no $file"
    done
    # Qt silently drops a feature that depends on a disabled one.
    grep -q 'QT_FEATURE_printdialog 1' "$work/stage$prefix/include/QtPrintSupport/qtprintsupport-config.h" ||
        fail "Qt was built without a print dialog"
}

install_packages "${packages_qt_source[@]}" "${packages_windows[@]}"
provide_qt qt-windows "Qt for Windows" twenty build_windows_qt \
    "x86_64-w64-mingw32-g++-posix $(x86_64-w64-mingw32-g++-posix -dumpfullversion)" "${options[@]}"
