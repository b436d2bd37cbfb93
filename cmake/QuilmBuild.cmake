# What every target of the project shares: language level, warnings, float rules.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

find_program(QUILM_CCACHE ccache)
if(QUILM_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${QUILM_CCACHE}")
endif()

add_library(quilm-options INTERFACE)
target_include_directories(quilm-options INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_compile_definitions(quilm-options INTERFACE QUILM_VERSION="${PROJECT_VERSION}")
# Rounding through 32 bits is behaviour: no contraction into fused operations, no fast-math.
target_compile_options(quilm-options INTERFACE -ffp-contract=off -Wall -Wextra -Wconversion -Wshadow)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns of overlaps and overflows in std::string that cannot happen (GCC bugs 105329 and 105651).
  target_compile_options(quilm-options INTERFACE -Wno-restrict -Wno-stringop-overflow)
  # Without this the compiler cache cannot see through precompiled headers.
  target_compile_options(quilm-options INTERFACE -fpch-preprocess)
endif()
if(QUILM_STRICT)
  target_compile_options(quilm-options INTERFACE -Werror)
endif()
if(QUILM_SANITIZE)
  target_compile_options(quilm-options INTERFACE "-fsanitize=${QUILM_SANITIZE}" -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  target_link_options(quilm-options INTERFACE "-fsanitize=${QUILM_SANITIZE}")
endif()

# quilm_reads_arguments(SOURCES...): sources that read a command line by CLI11, whose code is all inline. It runs once, and
# optimising it takes Clang 10 s a source under sanitizers, so there it is not.
function(quilm_reads_arguments)
  if(QUILM_SANITIZE)
    set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -O0 SKIP_PRECOMPILE_HEADERS ON)
  endif()
endfunction()

# quilm_library(NAME SOURCES... LINKS...): one static library of the program.
function(quilm_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC quilm-options ${arg_LINKS})
endfunction()

# quilm_test(NAME SOURCES... LINKS...): one GoogleTest program, its cases listed in ctest one by one.
function(quilm_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${name} PRIVATE ${arg_LINKS} GTest::gmock_main)
  target_precompile_headers(${name} REUSE_FROM quilm-test-headers)
  set(seconds 300)
  if(CMAKE_CROSSCOMPILING)
    set(seconds 6000)  # an emulator takes thirty times as long
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT ${seconds})
endfunction()
