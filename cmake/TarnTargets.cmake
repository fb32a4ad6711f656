# The project's own target kinds, so that every folder is declared the same way.

# What every target of ours is compiled with.
add_library(tarn_build_options INTERFACE)
target_compile_definitions(tarn_build_options INTERFACE
  QT_DEPRECATED_WARNINGS
  QT_DISABLE_DEPRECATED_BEFORE=0x050900
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_FOREACH)
if(MSVC)
  target_compile_options(tarn_build_options INTERFACE /W4 /utf-8 $<$<BOOL:${TARN_WARNINGS_AS_ERRORS}>:/WX>)
else()
  target_compile_options(tarn_build_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion
    -Wno-gnu-zero-variadic-macro-arguments
    $<$<BOOL:${TARN_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(TARN_SANITIZERS)
  target_compile_options(tarn_build_options INTERFACE
    -fsanitize=${TARN_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarn_build_options INTERFACE -fsanitize=${TARN_SANITIZERS})
endif()
if(TARN_COVERAGE)
  target_compile_options(tarn_build_options INTERFACE --coverage)
  target_link_options(tarn_build_options INTERFACE --coverage)
endif()

# tarn_add_library(<name> SOURCES <file>... LINKS <lower layer>...)
#
# One folder, one library. Its headers are found by those that link it and by
# nobody else, so an include that points up or sideways does not build.
function(tarn_add_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} Qt5::Widgets PRIVATE tarn_build_options)
  # Qt's headers take most of the time that a source compiles for; the lowest layer keeps them.
  if(name STREQUAL "tarn_helpers")
    target_precompile_headers(${name} PRIVATE <QtWidgets>)
  else()
    target_precompile_headers(${name} REUSE_FROM tarn_helpers)
  endif()
  # Joined, they compile several times faster. Other builds take each alone, so that it needs no
  # include of another.
  if(TARN_SANITIZERS)
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON)
  endif()
endfunction()

# Seconds that one test program may take; sanitizers make it several times slower.
set(TARN_TEST_TIMEOUT 180)
if(TARN_SANITIZERS)
  set(TARN_TEST_TIMEOUT 900)
endif()

# tarn_reuse_headers(<test> <library>)
#
# Compiles the test program with the precompiled headers of the library that it links.
function(tarn_reuse_headers test library)
  target_precompile_headers(${test} REUSE_FROM ${library})
  # Nothing stands in it.
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${test}_autogen/mocs_compilation.cpp
    PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
endfunction()

# tarn_add_test(<name> LINKS <library>... [SOURCES <file>...])
#
# Builds <name>.cpp, a QtTest program without a display, and registers it. Each stands
# in a folder of its own, since the program's settings file lies beside the program.
function(tarn_add_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${name}.cpp ${ARG_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests/${name})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} tarn_test_support tarn_build_options)
  tarn_reuse_headers(${name} tarn_test_support)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    LABELS unit
    TIMEOUT ${TARN_TEST_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_RUNTIME_DIR=${TARN_TEST_RUNTIME_DIR};LC_ALL=C.UTF-8")
endfunction()
