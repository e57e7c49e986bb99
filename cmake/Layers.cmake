# A layer is one static library below src/. What a layer may include is stated here, in one table, and checked
# against the #include lines at every build: a wrong arrow fails the build.
set(QUORVEX_LAYERS model platform engine services cli)
set(QUORVEX_LAYER_model "")
set(QUORVEX_LAYER_platform "")
set(QUORVEX_LAYER_engine model platform)
set(QUORVEX_LAYER_services model platform)
set(QUORVEX_LAYER_cli model platform engine services)

# quorvex_layer(NAME [SOURCES file...] [LIBRARIES library...])
function(quorvex_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  add_library(quorvex_${name} STATIC ${arg_SOURCES})
  target_include_directories(quorvex_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(quorvex_${name} PUBLIC quorvex_flags Qt6::Core ${arg_LIBRARIES})
  foreach(lower IN LISTS QUORVEX_LAYER_${name})
    target_link_libraries(quorvex_${name} PUBLIC quorvex_${lower})
  endforeach()
  add_dependencies(quorvex_${name} quorvex_layer_check)
endfunction()

set(table "")
foreach(layer IN LISTS QUORVEX_LAYERS)
  string(REPLACE ";" "," allowed "${QUORVEX_LAYER_${layer}}")
  list(APPEND table "${layer}=${allowed}")
endforeach()
string(REPLACE ";" "|" table "${table}")
add_custom_target(quorvex_layer_check ALL
  COMMAND ${CMAKE_COMMAND} "-DSOURCE=${PROJECT_SOURCE_DIR}/src" "-DTABLE=${table}"
          -P "${CMAKE_CURRENT_LIST_DIR}/CheckLayers.cmake"
  COMMENT "Checking the include arrows between the layers"
  VERBATIM)
