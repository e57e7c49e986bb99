# Renders the logo as a picture and as a Windows icon of all sizes, from one drawing.

find_program(QUORVEX_RSVG_CONVERT rsvg-convert)
find_program(QUORVEX_ICOTOOL icotool)
if(NOT QUORVEX_RSVG_CONVERT OR NOT QUORVEX_ICOTOOL)
  message(FATAL_ERROR "rsvg-convert and icotool draw the program's icon: docs/building-on-windows.md says where they come from")
endif()

set(folder "${CMAKE_BINARY_DIR}/icons")
set(logo "${PROJECT_SOURCE_DIR}/resources/icons/logo.svg")
set(QUORVEX_ICON "${folder}/quorvex.ico")
set(QUORVEX_LOGO_PNG "${folder}/logo-256.png")
file(MAKE_DIRECTORY "${folder}")

set(images "")
set(commands "")
foreach(size IN ITEMS 16 20 24 32 40 48 64 128 256)
  set(image "${folder}/logo-${size}.png")
  list(APPEND commands COMMAND "${QUORVEX_RSVG_CONVERT}" --width=${size} --height=${size} "--output=${image}" "${logo}")
  # Windows expects pictures from 256 pixels on in compressed form.
  if(size EQUAL 256)
    list(APPEND images "--raw=${image}")
  else()
    list(APPEND images "${image}")
  endif()
endforeach()
add_custom_command(
  OUTPUT "${QUORVEX_ICON}" "${QUORVEX_LOGO_PNG}"
  ${commands}
  COMMAND "${QUORVEX_ICOTOOL}" --create "--output=${QUORVEX_ICON}" ${images}
  DEPENDS "${logo}"
  COMMENT "Drawing the program's icon"
  VERBATIM)
add_custom_target(quorvex_icon DEPENDS "${QUORVEX_ICON}" "${QUORVEX_LOGO_PNG}")
