# How every file of the project is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Release or Debug" FORCE)
endif()
set(CMAKE_CXX_FLAGS_RELEASE "-O2") # with asserts: they cost nothing where it counts
set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")

add_compile_options(
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  # A drawing is the same to the last bit on every machine: no fused multiplications, no shortcuts.
  -ffp-contract=off)

set(DIALWRIGHT_SANITIZE "" CACHE STRING "Sanitizers, e.g. address,undefined")
if(DIALWRIGHT_SANITIZE)
  add_compile_options(
    -fsanitize=${DIALWRIGHT_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    -D_GLIBCXX_ASSERTIONS
    -Wno-unknown-warning-option # of another compiler
    -Wno-maybe-uninitialized) # the instrumented code sets off false alarms
  add_link_options(-fsanitize=${DIALWRIGHT_SANITIZE})
endif()

# One compilation serves all work trees: paths below the root are taken relative to it.
find_program(DIALWRIGHT_CCACHE ccache)
mark_as_advanced(DIALWRIGHT_CCACHE)
if(DIALWRIGHT_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
    CCACHE_SLOPPINESS=pch_defines,time_macros ${DIALWRIGHT_CCACHE})
endif()
