# The only place for compiler and linker flags; every target of the project links quorvex_flags.
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
    # Clang has no equivalents of these options and rejects them.
    target_compile_options(quorvex_flags INTERFACE -Wduplicated-cond -Wlogical-op)
    # With this option ccache sees which precompiled header was used.
    target_compile_options(quorvex_flags INTERFACE -fpch-preprocess)
  endif()
  # Needed for linking too, because with MinGW the called functions are in a separate library.
  target_link_options(quorvex_flags INTERFACE -fstack-protector-strong)
  # std::string_view and other classes check their bounds, at no measurable cost here.
  target_compile_definitions(quorvex_flags INTERFACE $<$<BOOL:${QUORVEX_ASSERTIONS}>:_GLIBCXX_ASSERTIONS>)
endif()

if(QUORVEX_ASSERTIONS)
  # RelWithDebInfo defines NDEBUG and QT_NO_DEBUG; assertions are enabled again without losing optimisation.
  target_compile_options(quorvex_flags INTERFACE -UNDEBUG)
  target_compile_definitions(quorvex_flags INTERFACE QT_FORCE_ASSERTS)
endif()

if(QUORVEX_SANITIZE)
  target_compile_options(quorvex_flags INTERFACE
    -fsanitize=${QUORVEX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(quorvex_flags INTERFACE -fsanitize=${QUORVEX_SANITIZE})
endif()

if(QUORVEX_COVERAGE)
  # Threads count the same lines.
  target_compile_options(quorvex_flags INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(quorvex_flags INTERFACE --coverage)
endif()

target_link_libraries(quorvex_flags INTERFACE Threads::Threads)
