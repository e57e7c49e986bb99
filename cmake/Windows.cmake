# Resources of Windows programs, and the libraries that must lie beside them to run from the build folder.

# quorvex_windows_program(TARGET DESCRIPTION text RIGHTS asInvoker|highestAvailable): adds manifest, version resource
# and icon. RIGHTS: the rights that the program requests at its start.
function(quorvex_windows_program target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION;RIGHTS" "")
  set(folder "${CMAKE_BINARY_DIR}/windows/${target}")
  set(QUORVEX_FILE_NAME "${target}.exe")
  set(QUORVEX_FILE_DESCRIPTION "${arg_DESCRIPTION}")
  set(QUORVEX_RIGHTS "${arg_RIGHTS}")
  set(QUORVEX_MANIFEST "${folder}/program.manifest")
  configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/program.manifest.in" "${QUORVEX_MANIFEST}" @ONLY)
  configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in" "${folder}/program.rc" @ONLY)
  target_sources(${target} PRIVATE "${folder}/program.rc")
  set_source_files_properties("${folder}/program.rc" PROPERTIES OBJECT_DEPENDS "${QUORVEX_MANIFEST};${QUORVEX_ICON}")
  add_dependencies(${target} quorvex_icon)
  if(MSVC)
    # Otherwise the linker would add its own manifest.
    target_link_options(${target} PRIVATE /MANIFEST:NO)
  endif()
endfunction()

# Windows looks for libraries beside the program first.
if(CMAKE_CROSSCOMPILING)
  set(libraries "")
  foreach(library IN ITEMS libgcc_s_seh-1 libssp-0 libstdc++-6 libwinpthread-1)
    execute_process(
      COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${library}.dll
      OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT IS_ABSOLUTE "${file}")
      message(FATAL_ERROR "The compiler does not know where its ${library}.dll is")
    endif()
    list(APPEND libraries "${file}")
  endforeach()
  get_target_property(core Qt6::Core IMPORTED_LOCATION_RELEASE)
  get_filename_component(qt_libraries "${core}" DIRECTORY)
  file(GLOB qt "${qt_libraries}/Qt6*.dll")
  add_custom_target(quorvex_runtime ALL
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${libraries} ${qt} "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
    COMMAND ${CMAKE_COMMAND} -E copy_directory "${qt_libraries}/../plugins" "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}"
    COMMENT "Laying the libraries beside the programs"
    VERBATIM)
endif()
