# Flags that all targets of the project share.
add_library(tamrikon_flags INTERFACE)
target_compile_options(tamrikon_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
# GCC 12 warns of its own std::string operators there (bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(tamrikon_flags INTERFACE -Wno-restrict)
endif()
if(TAMRIKON_WERROR)
  target_compile_options(tamrikon_flags INTERFACE -Werror)
endif()
if(TAMRIKON_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_compile_options(tamrikon_flags INTERFACE ${sanitizers})
  target_link_options(tamrikon_flags INTERFACE ${sanitizers})
endif()

set(common_headers <algorithm> <cstdint> <functional> <memory> <optional> <string> <string_view>
    <utility> <vector>)

# tamrikon_precompile(TARGET KIND HEADER...): lets a target share the precompiled headers of the first
# one of its kind.
function(tamrikon_precompile target kind)
  if(NOT TAMRIKON_PCH)
    return()
  endif()
  get_property(first GLOBAL PROPERTY tamrikon_precompiled_${kind})
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
    set_property(GLOBAL PROPERTY tamrikon_precompiled_${kind} ${target})
  endif()
endfunction()

if(TAMRIKON_FUZZ)
  target_compile_options(tamrikon_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tamrikon_library(NAME SOURCES ... USES ...): the library of one folder of src. USES names the
# folders that it may include, so that the link list shows the arrows.
function(tamrikon_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_library(tamrikon_${name} STATIC ${ARG_SOURCES})
  target_include_directories(tamrikon_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(tamrikon_${name} PRIVATE tamrikon_flags)
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(tamrikon_${name} PUBLIC tamrikon_${used})
  endforeach()
  tamrikon_precompile(tamrikon_${name} base ${common_headers})
endfunction()

# tamrikon_test(FOLDER LABEL SOURCES ... USES ...): the test program of one folder of tests.
function(tamrikon_test folder label)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_executable(${folder}_test ${ARG_SOURCES})
  target_link_libraries(${folder}_test PRIVATE tamrikon_flags GTest::gtest_main)
  target_include_directories(${folder}_test PRIVATE ${PROJECT_SOURCE_DIR}/src
                             ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${folder}_test PRIVATE
                             TAMRIKON_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(${folder}_test PRIVATE tamrikon_${used})
  endforeach()
  # Qt sets flags of its own.
  set(kind tests)
  if(label STREQUAL "gui")
    set(kind gui)
  endif()
  tamrikon_precompile(${folder}_test ${kind} ${common_headers} <gtest/gtest.h>)
  gtest_discover_tests(${folder}_test NO_PRETTY_VALUES PROPERTIES LABELS ${label})
endfunction()
