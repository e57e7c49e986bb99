# quorvex_test(NAME LABEL label SOURCES file... [LIBRARIES library...] [NEEDS_ROOT] [TIMEOUT seconds])
#
# One program per suite. Labels: unit, contract, fault, residue, cli, gui. Suites that need root or loop devices carry
# NEEDS_ROOT, and share one lock, since they attach devices and mount file systems.
function(quorvex_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "NEEDS_ROOT" "LABEL;TIMEOUT" "SOURCES;LIBRARIES")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE quorvex_flags Qt6::Test ${arg_LIBRARIES})
  if(NOT MSVC)
    # What is tested is compiled as users get it; the suites around it compile in half the time with this.
    target_compile_options(${name} PRIVATE -O1 -g1)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  set_tests_properties(${name} PROPERTIES
    LABELS "${arg_LABEL}"
    TIMEOUT ${arg_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
  if(arg_NEEDS_ROOT)
    set_tests_properties(${name} PROPERTIES RESOURCE_LOCK block_devices)
  endif()
endfunction()
