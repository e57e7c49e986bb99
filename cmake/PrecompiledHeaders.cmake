# The headers of Qt and of the standard library that most files include, compiled once. Files still include the headers
# they use, because static analysis and one sanitizer build run without this (CMAKE_DISABLE_PRECOMPILE_HEADERS).
#
# A precompiled header is valid for one set of compiler flags, so there is one for each kind of target. scripts/lib.sh
# sets the ccache options that precompiled headers need.

# quorvex_precompiled_header(NAME [PROGRAM] LIBRARIES library... HEADERS header...): a target whose header other targets
# reuse. PROGRAM: for programs and tests, which are compiled with other options than libraries.
function(quorvex_precompiled_header name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "PROGRAM" "" "LIBRARIES;HEADERS")
  set(source "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp")
  if(arg_PROGRAM)
    file(CONFIGURE OUTPUT "${source}" CONTENT "int main() {}\n")
    add_executable(${name} "${source}")
    quorvex_test_options(${name})
  else()
    file(CONFIGURE OUTPUT "${source}" CONTENT "extern const int ${name};\nconst int ${name} = 0;\n")
    add_library(${name} STATIC "${source}")
  endif()
  target_link_libraries(${name} PRIVATE quorvex_flags ${arg_LIBRARIES})
  target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

set(core_headers
  <QByteArray> <QDateTime> <QDebug> <QDir> <QFile> <QFileInfo> <QHash> <QJsonArray> <QJsonDocument> <QJsonObject> <QList>
  <QMap> <QMutex> <QObject> <QRegularExpression> <QSet> <QString> <QStringList> <QThread> <QVariant> <QtEndian>
  <algorithm> <array> <atomic> <chrono> <functional> <memory> <optional> <string> <utility> <vector>)
set(widget_headers
  <QApplication> <QBoxLayout> <QIcon> <QLabel> <QPainter> <QPushButton> <QScrollArea> <QTreeWidget> <QWidget>)
set(test_headers
  <QAbstractItemModel> <QElapsedTimer> <QProcess> <QSignalSpy> <QStandardPaths> <QTemporaryDir> <QTest> <QTimer>)

quorvex_precompiled_header(quorvex_precompiled_core LIBRARIES Qt6::Core HEADERS ${core_headers})
if(QUORVEX_GUI)
  quorvex_precompiled_header(quorvex_precompiled_widgets
    LIBRARIES Qt6::Widgets HEADERS ${core_headers} ${widget_headers})
endif()

# For test programs, called by cmake/Tests.cmake.
function(quorvex_precompiled_test_headers)
  quorvex_precompiled_header(quorvex_precompiled_tests PROGRAM
    LIBRARIES Qt6::Test HEADERS ${core_headers} ${test_headers})
  if(QUORVEX_GUI)
    quorvex_precompiled_header(quorvex_precompiled_widget_tests PROGRAM
      LIBRARIES Qt6::Test Qt6::Widgets HEADERS ${core_headers} ${test_headers} ${widget_headers})
  endif()
endfunction()
