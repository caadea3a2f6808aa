# ov_layer(NAME SOURCES ... [DEPENDS ...]): one library per folder. DEPENDS is
# the architecture diagram. Who may include whom follows from it and is checked
# by scripts/check-style: one search path serves all folders.
add_library(ov_options INTERFACE)
target_link_libraries(ov_options INTERFACE ov_warnings)
target_include_directories(ov_options INTERFACE "${CMAKE_SOURCE_DIR}")
# Byte-identical rebuilds, in whatever folder the sources lie.
target_compile_options(ov_options INTERFACE "-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=")
if(WIN32)
  target_compile_definitions(
    ov_options
    INTERFACE UNICODE
              _UNICODE
              STRICT
              NOMINMAX
              WIN32_LEAN_AND_MEAN
              WINVER=0x0601
              _WIN32_WINNT=0x0601
              NTDDI_VERSION=0x06010000)
  target_link_options(ov_options INTERFACE -static -Wl,--no-insert-timestamp)
endif()
if(OV_SANITIZE)
  target_compile_options(ov_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                              -fno-omit-frame-pointer)
  target_link_options(ov_options INTERFACE -fsanitize=address,undefined)
endif()

function(ov_layer NAME)
  cmake_parse_arguments(LAYER "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(${NAME} STATIC ${LAYER_SOURCES})
  target_link_libraries(${NAME} PUBLIC ov_options ${LAYER_DEPENDS})
  if(OV_FUZZ)
    # The counters that steer the fuzzer are in the product's code, not in the harnesses'.
    target_compile_options(${NAME} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  if(OV_COVERAGE)
    # Atomically, so that a process that is killed in a test leaves sound counters.
    target_compile_options(${NAME} PRIVATE --coverage -fprofile-update=atomic)
    target_link_options(${NAME} PUBLIC --coverage)
  endif()
endfunction()

# ov_test(NAME SOURCES ... DEPENDS ... [PRECOMPILE ...]): one test program.
# Nobody waits for the tests' own code, only for its compiler: it is not
# optimised, and the headers that all of a program's files read are read once.
function(ov_test NAME)
  cmake_parse_arguments(TEST "" "" "SOURCES;DEPENDS;PRECOMPILE" ${ARGN})
  add_executable(${NAME} ${TEST_SOURCES})
  target_link_libraries(${NAME} PRIVATE ov_options ${TEST_DEPENDS} gtest_main)
  target_compile_options(${NAME} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
  target_precompile_headers(${NAME} PRIVATE <gtest/gtest.h> ${TEST_PRECOMPILE})
  add_test(NAME ${NAME} COMMAND ${NAME})
endfunction()
