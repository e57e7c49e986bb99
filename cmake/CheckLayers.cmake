# cmake -DSOURCE=<src> -DTABLE="layer=lower,lower|layer=..." -P CheckLayers.cmake
#
# Three rules: a file of a layer includes only its own layer and those in its row of the table; headers of an
# operating system appear only below src/platform/, in the folder of a backend; those of Windows only in
# src/platform/windows/.
cmake_minimum_required(VERSION 3.25)

string(REPLACE "|" ";" rows "${TABLE}")
set(layers "")
foreach(row IN LISTS rows)
  string(REGEX MATCH "^([a-z]+)=(.*)$" _ "${row}")
  list(APPEND layers "${CMAKE_MATCH_1}")
  string(REPLACE "," ";" allowed_${CMAKE_MATCH_1} "${CMAKE_MATCH_2}")
endforeach()

set(windows_header "^(windows|win[a-z]*|fileapi|ioapiset|sddl|shlobj|shellapi|io|direct)\\.h$")
set(system_header
  "${windows_header}|^(unistd|fcntl|dirent|mntent|fstab|grp|pwd|errno|poll|signal|termios)\\.h$|^(sys|linux|asm|net|arpa)/")

set(problems "")
foreach(layer IN LISTS layers)
  file(GLOB_RECURSE files RELATIVE "${SOURCE}" "${SOURCE}/${layer}/*.h" "${SOURCE}/${layer}/*.cpp")
  foreach(file IN LISTS files)
    file(STRINGS "${SOURCE}/${file}" lines REGEX "^[ \t]*#[ \t]*include")
    foreach(line IN LISTS lines)
      if(NOT line MATCHES "[<\"]([^>\"]+)[>\"]")
        continue()
      endif()
      set(header "${CMAKE_MATCH_1}")
      if(header MATCHES "^([a-z]+)/" AND CMAKE_MATCH_1 IN_LIST layers)
        set(target "${CMAKE_MATCH_1}")
        if(NOT target STREQUAL layer AND NOT target IN_LIST allowed_${layer})
          list(APPEND problems "src/${file}: '${layer}' must not include '${header}'")
        endif()
      elseif(line MATCHES "\"" AND NOT header MATCHES "\\.moc$")
        list(APPEND problems "src/${file}: write \"${header}\" as a path from src/")
      endif()
      if(NOT layer STREQUAL "platform" AND header MATCHES "${system_header}")
        list(APPEND problems "src/${file}: '${header}' belongs below src/platform/")
      endif()
      if(file MATCHES "^platform/(linux|image)/" AND header MATCHES "${windows_header}")
        list(APPEND problems "src/${file}: '${header}' belongs below src/platform/windows/")
      endif()
      if(file MATCHES "^platform/[a-z]+\\.(h|cpp)$" AND header MATCHES "${system_header}")
        list(APPEND problems "src/${file}: '${header}' belongs into a backend's folder")
      endif()
    endforeach()
  endforeach()
endforeach()

if(problems)
  list(JOIN problems "\n  " text)
  message(FATAL_ERROR "Include arrows that the layers do not allow:\n  ${text}")
endif()
