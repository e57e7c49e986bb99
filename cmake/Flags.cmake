# The one place for compiler and linker flags: every target of ours links quorvex_flags.
add_library(quorvex_flags INTERFACE)

target_compile_features(quorvex_flags INTERFACE cxx_std_20)
target_compile_definitions(quorvex_flags INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CONTEXTLESS_CONNECT
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH
  _FILE_OFFSET_BITS=64)

if(WIN32)
  # Windows 10 and newer.
  target_compile_definitions(quorvex_flags INTERFACE WINVER=0x0A00 _WIN32_WINNT=0x0A00)
endif()

if(MSVC)
  target_compile_options(quorvex_flags INTERFACE /utf-8 /W4 /WX /permissive-)
else()
  target_compile_options(quorvex_flags INTERFACE
    -Wall -Wextra -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wold-style-cast -Wvla
    -fstack-protector-strong)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Clang has them under no name of their own, and refuses these.
    target_compile_options(quorvex_flags INTERFACE -Wduplicated-cond -Wlogical-op)
    # What ccache compares then tells which precompiled header was used.
    target_compile_options(quorvex_flags INTERFACE -fpch-preprocess)
  endif()
  # Also when linking: with MinGW what it calls is a library of its own.
  target_link_options(quorvex_flags INTERFACE -fstack-protector-strong)
  # std::string_view and friends check their bounds, which costs nothing measurable here.
  target_compile_definitions(quorvex_flags INTERFACE $<$<BOOL:${QUORVEX_ASSERTIONS}>:_GLIBCXX_ASSERTIONS>)
endif()

if(QUORVEX_ASSERTIONS)
  # RelWithDebInfo defines NDEBUG and QT_NO_DEBUG; assertions come back without giving up optimisation.
  target_compile_options(quorvex_flags INTERFACE -UNDEBUG)
  target_compile_definitions(quorvex_flags INTERFACE QT_FORCE_ASSERTS)
endif()

if(QUORVEX_SANITIZE)
  target_compile_options(quorvex_flags INTERFACE
    -fsanitize=${QUORVEX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(quorvex_flags INTERFACE -fsanitize=${QUORVEX_SANITIZE})
endif()

target_link_libraries(quorvex_flags INTERFACE Threads::Threads)
