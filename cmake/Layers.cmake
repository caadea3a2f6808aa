# ov_layer(NAME SOURCES ... [DEPENDS ...]): one library per folder. DEPENDS is
# the architecture. The compiler has one search path for all folders, so
# scripts/check-layers compares the includes, and the diagram in
# docs/architecture.md, with the dependencies recorded here. Lines of layers.txt are
# "layer NAME DEPENDS...", "source NAME FILE" or "folder NAME FOLDER".
set(OV_LAYERS_FILE "${PROJECT_BINARY_DIR}/layers.txt")
file(WRITE "${OV_LAYERS_FILE}" "")

# ov_headers_of(NAME FOLDER): declares headers without sources, which layers may
# include if they name them under DEPENDS.
function(ov_headers_of NAME FOLDER)
  add_library(${NAME} INTERFACE)
  file(APPEND "${OV_LAYERS_FILE}" "layer ${NAME}\nfolder ${NAME} ${FOLDER}\n")
endfunction()
ov_headers_of(ov_resource_ids resources)
ov_headers_of(ov_public_header include)

add_library(ov_options INTERFACE)
target_link_libraries(ov_options INTERFACE ov_warnings)
target_include_directories(ov_options INTERFACE "${PROJECT_SOURCE_DIR}")
# Byte-identical rebuilds in every source folder.
target_compile_options(ov_options INTERFACE "-ffile-prefix-map=${PROJECT_SOURCE_DIR}/=")
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
  # Sources of the tests may use the same names.
  if(OV_UNITY AND NOT CMAKE_CURRENT_SOURCE_DIR MATCHES "/tests/")
    set_target_properties(${NAME} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
  endif()
  set(DEPENDS "${LAYER_DEPENDS}")
  list(TRANSFORM DEPENDS REPLACE "^\\$<\\$<PLATFORM_ID:Windows>:(.*)>$" "\\1")
  list(JOIN DEPENDS " " DEPENDS)
  file(APPEND "${OV_LAYERS_FILE}" "layer ${NAME} ${DEPENDS}\n")
  foreach(SOURCE IN LISTS LAYER_SOURCES)
    cmake_path(ABSOLUTE_PATH SOURCE BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
    cmake_path(RELATIVE_PATH SOURCE BASE_DIRECTORY "${PROJECT_SOURCE_DIR}")
    file(APPEND "${OV_LAYERS_FILE}" "source ${NAME} ${SOURCE}\n")
  endforeach()
  if(OV_SANITIZE AND NOT OV_FUZZ)
    # Unoptimised, the checks of the sanitizers take three quarters of the tests' time.
    target_compile_options(${NAME} PRIVATE -O1)
  endif()
  if(OV_FUZZ)
    # The fuzzer is steered by counters in the product's code, not in the harnesses.
    target_compile_options(${NAME} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  if(OV_COVERAGE)
    # Atomic updates, so that a process killed by a test leaves valid counters.
    target_compile_options(${NAME} PRIVATE --coverage -fprofile-update=atomic)
    target_link_options(${NAME} PUBLIC --coverage)
  endif()
endfunction()

# ov_test(NAME SOURCES ... DEPENDS ... [PRECOMPILE ...]): one test program.
# The tests' own code takes longer to compile than to run, so it is not
# optimised, and headers used by all files of a program are precompiled.
function(ov_test NAME)
  cmake_parse_arguments(TEST "" "" "SOURCES;DEPENDS;PRECOMPILE" ${ARGN})
  add_executable(${NAME} ${TEST_SOURCES})
  target_link_libraries(${NAME} PRIVATE ov_options ${TEST_DEPENDS} gtest_main)
  target_compile_options(${NAME} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-O0>)
  target_precompile_headers(${NAME} PRIVATE <gtest/gtest.h> ${TEST_PRECOMPILE})
  add_test(NAME ${NAME} COMMAND ${NAME})
endfunction()
