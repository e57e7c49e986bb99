# A layer is one static library below src/, named by its folder. This table states the layers that each layer may
# include. Every build checks it against the #include lines and fails on a violation.
set(QUORVEX_LAYERS model platform engine services jobs certificate ui/style ui/prompts ui/certificate ui cli)
set(QUORVEX_LAYER_model "")
set(QUORVEX_LAYER_platform "")
set(QUORVEX_LAYER_engine model platform)
set(QUORVEX_LAYER_services model platform)
set(QUORVEX_LAYER_jobs model platform engine services)
set(QUORVEX_LAYER_certificate model platform)
set(QUORVEX_LAYER_ui/style model)
set(QUORVEX_LAYER_ui/prompts "")
set(QUORVEX_LAYER_ui/certificate model certificate ui/style ui/prompts)
set(QUORVEX_LAYER_ui model platform engine services jobs certificate ui/style ui/prompts ui/certificate)
set(QUORVEX_LAYER_cli model platform engine services jobs certificate)

# quorvex_layer(NAME [MOC] [RCC] [SOURCES file...] [LIBRARIES library...])
#
# The library of the layer "ui/prompts" is quorvex_ui_prompts.
# MOC: the layer has signals, slots or properties; RCC: it has resources. Both take time at every build, so a layer sets
# them only when it needs them.
function(quorvex_layer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "MOC;RCC" "" "SOURCES;LIBRARIES")
  string(REPLACE "/" "_" library "quorvex_${name}")
  add_library(${library} STATIC ${arg_SOURCES})
  set_target_properties(${library} PROPERTIES AUTOMOC ${arg_MOC} AUTORCC ${arg_RCC})
  if("Qt6::Widgets" IN_LIST arg_LIBRARIES)
    target_precompile_headers(${library} REUSE_FROM quorvex_precompiled_widgets)
  else()
    target_precompile_headers(${library} REUSE_FROM quorvex_precompiled_core)
  endif()
  target_include_directories(${library} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${library} PUBLIC quorvex_flags Qt6::Core ${arg_LIBRARIES})
  foreach(lower IN LISTS QUORVEX_LAYER_${name})
    # A build without a user interface has no interface layers.
    string(REPLACE "/" "_" lower "quorvex_${lower}")
    if(TARGET ${lower} OR QUORVEX_GUI)
      target_link_libraries(${library} PUBLIC ${lower})
    endif()
  endforeach()
  add_dependencies(${library} quorvex_layer_check)
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
