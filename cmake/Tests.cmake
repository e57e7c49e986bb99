# Suites and the programs that contain them.
#
# Suites of one subject share a program, since linking one per suite takes as long as compiling it.
# "quorvex-tests-engine tst_wipeengine" runs that suite, with the arguments of Qt Test after its name. In ctest each
# suite is a separate test with its own process.

# Test code compiles in half the time with these options; the code under test is compiled as users get it.
function(quorvex_test_options target)
  if(NOT MSVC)
    target_compile_options(${target} PRIVATE -O1 -g1)
  endif()
endfunction()

# The folder of a suite's test data, which no suite uses. It differs from folder to folder, so a precompiled header
# would be valid for one folder only.
get_target_property(definitions Qt6::Test INTERFACE_COMPILE_DEFINITIONS)
list(FILTER definitions EXCLUDE REGEX "^QT_TESTCASE_")
set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS "${definitions}")

quorvex_precompiled_test_headers()

# quorvex_test_program(NAME [WIDGETS] [SOURCES file...] [LIBRARIES library...])
#
# A program for suites; the sources are shared by them. WIDGETS: it, or one of its libraries, uses Qt Gui or Widgets. It
# links both, so that one precompiled header serves all such programs.
function(quorvex_test_program name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "WIDGETS" "" "SOURCES;LIBRARIES")
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE quorvex_flags quorvex_testsupport Qt6::Test ${arg_LIBRARIES})
  quorvex_test_options(${name})
  if(arg_WIDGETS AND QUORVEX_GUI)
    target_link_libraries(${name} PRIVATE Qt6::Widgets)
    target_precompile_headers(${name} REUSE_FROM quorvex_precompiled_widget_tests)
  else()
    target_precompile_headers(${name} REUSE_FROM quorvex_precompiled_tests)
  endif()
  add_dependencies(quorvex_tests ${name})
endfunction()

# All programs that the tests of this build run; the programs that suites start are added at their definition.
add_custom_target(quorvex_tests)

# quorvex_suite(FILE PROGRAM program LABEL label [NAME name] [NEEDS_ROOT] [USER_DATA] [TIMEOUT seconds] [ENVIRONMENT name=value...])
#
# FILE is the suite's source without ".cpp"; its last part is the suite's name. NAME is the name of the test when it
# differs, for a suite that runs more than once. Labels: unit, contract, fault, residue, cli, gui, windows; NEEDS_ROOT adds
# root, for suites that attach loop devices or mount file systems. These suites run side by side like all others, because
# each looks only at the devices that it attached itself. USER_DATA: for suites that use the folder of the user's data;
# on Windows they share one folder and wait for each other.
function(quorvex_suite file)
  cmake_parse_arguments(PARSE_ARGV 1 arg "NEEDS_ROOT;USER_DATA" "PROGRAM;LABEL;NAME;TIMEOUT" "ENVIRONMENT")
  get_filename_component(suite "${file}" NAME)
  if(NOT arg_NAME)
    set(arg_NAME ${suite})
  endif()
  get_target_property(sources ${arg_PROGRAM} SOURCES)
  set(source "${CMAKE_CURRENT_SOURCE_DIR}/${file}.cpp")
  if(NOT source IN_LIST sources)
    target_sources(${arg_PROGRAM} PRIVATE "${source}")
  endif()
  add_test(NAME ${arg_NAME} COMMAND ${arg_PROGRAM} ${suite})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  set_tests_properties(${arg_NAME} PROPERTIES
    LABELS "${arg_LABEL}"
    TIMEOUT ${arg_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${arg_ENVIRONMENT}")
  if(arg_NEEDS_ROOT)
    set_property(TEST ${arg_NAME} APPEND PROPERTY LABELS root)
  endif()
  if(arg_USER_DATA AND WIN32)
    set_property(TEST ${arg_NAME} APPEND PROPERTY RESOURCE_LOCK user_data)
  endif()
endfunction()

# quorvex_device_fault_suite(NAME PROGRAM program): a suite on devices that fail on command.
function(quorvex_device_fault_suite name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PROGRAM" "")
  if(QUORVEX_TEST_FUSE)
    target_link_libraries(${arg_PROGRAM} PRIVATE quorvex_testfuse)
    quorvex_suite(${name} PROGRAM ${arg_PROGRAM} LABEL fault NEEDS_ROOT)
  else()
    add_test(NAME ${name}
      COMMAND "${CMAKE_COMMAND}" -E echo "SKIPPED: built without libfuse 3 (pkg-config, libfuse3-dev)")
    set_tests_properties(${name} PROPERTIES LABELS fault SKIP_REGULAR_EXPRESSION "SKIPPED: ")
  endif()
endfunction()
