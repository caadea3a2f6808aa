# All dependencies are packages of the distribution, installed by scripts/setup.
# PCRE2 and GoogleTest are installed as sources. PCRE2 is built once per toolchain and kept
# outside the build folder, so that a clean build does not have to build it again.
if(DEFINED ENV{XDG_CACHE_HOME})
  set(OV_DEPS_DEFAULT "$ENV{XDG_CACHE_HOME}/ovPreferences")
else()
  set(OV_DEPS_DEFAULT "$ENV{HOME}/.cache/ovPreferences")
endif()
set(OV_DEPS_DIR
    "${OV_DEPS_DEFAULT}"
    CACHE PATH "Where scripts/setup keeps third-party sources and builds")

file(GLOB OV_PCRE2_SOURCE LIST_DIRECTORIES true "${OV_DEPS_DIR}/source/pcre2-*")
list(FILTER OV_PCRE2_SOURCE INCLUDE REGEX "/pcre2-[0-9.]+$")
if(NOT OV_PCRE2_SOURCE)
  message(FATAL_ERROR "PCRE2's sources are missing in ${OV_DEPS_DIR}/source: run scripts/setup first")
endif()
list(GET OV_PCRE2_SOURCE -1 OV_PCRE2_SOURCE)
cmake_path(GET OV_PCRE2_SOURCE FILENAME OV_PCRE2_NAME)
string(TOLOWER "${CMAKE_SYSTEM_NAME}" OV_PCRE2_FLAVOUR)
set(OV_PCRE2_PREFIX "${OV_DEPS_DIR}/${OV_PCRE2_NAME}-${OV_PCRE2_FLAVOUR}")
set(OV_PCRE2_LIBRARY "${OV_PCRE2_PREFIX}/lib/libpcre2-8.a")

if(NOT EXISTS "${OV_PCRE2_LIBRARY}")
  message(STATUS "Building ${OV_PCRE2_NAME} for ${CMAKE_SYSTEM_NAME}")
  set(OV_PCRE2_BUILD "${PROJECT_BINARY_DIR}/pcre2")
  # Installed into a temporary folder and renamed when complete, so that an
  # interrupted installation is never used as a library.
  string(RANDOM LENGTH 8 OV_PCRE2_SUFFIX)
  set(OV_PCRE2_PARTIAL "${OV_PCRE2_PREFIX}.${OV_PCRE2_SUFFIX}")
  set(OV_PCRE2_TOOLCHAIN "")
  if(CMAKE_TOOLCHAIN_FILE)
    set(OV_PCRE2_TOOLCHAIN "-DCMAKE_TOOLCHAIN_FILE=${CMAKE_TOOLCHAIN_FILE}")
  endif()
  # Rebuilds must be byte-identical in every source folder, hence the map.
  execute_process(
    COMMAND
      ${CMAKE_COMMAND} -S "${OV_PCRE2_SOURCE}" -B "${OV_PCRE2_BUILD}" -G Ninja ${OV_PCRE2_TOOLCHAIN}
      -DCMAKE_BUILD_TYPE=Release "-DCMAKE_INSTALL_PREFIX=${OV_PCRE2_PARTIAL}" -DBUILD_SHARED_LIBS=OFF
      -DPCRE2_BUILD_PCRE2GREP=OFF -DPCRE2_BUILD_TESTS=OFF -DPCRE2_SUPPORT_LIBREADLINE=OFF
      "-DCMAKE_C_FLAGS=-ffile-prefix-map=${OV_PCRE2_SOURCE}=pcre2" COMMAND_ERROR_IS_FATAL ANY
    OUTPUT_QUIET)
  execute_process(COMMAND ${CMAKE_COMMAND} --build "${OV_PCRE2_BUILD}" --target install
                          COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
  file(RENAME "${OV_PCRE2_PARTIAL}" "${OV_PCRE2_PREFIX}" RESULT OV_PCRE2_RENAMED)
  if(NOT EXISTS "${OV_PCRE2_LIBRARY}")
    # The folder contains no library, because an earlier run was interrupted.
    file(REMOVE_RECURSE "${OV_PCRE2_PREFIX}")
    file(RENAME "${OV_PCRE2_PARTIAL}" "${OV_PCRE2_PREFIX}")
  elseif(OV_PCRE2_RENAMED)
    # Another build finished first.
    file(REMOVE_RECURSE "${OV_PCRE2_PARTIAL}")
  endif()
endif()

add_library(pcre2-8 STATIC IMPORTED GLOBAL)
set_target_properties(
  pcre2-8 PROPERTIES IMPORTED_LOCATION "${OV_PCRE2_LIBRARY}" INTERFACE_INCLUDE_DIRECTORIES
                     "${OV_PCRE2_PREFIX}/include" INTERFACE_COMPILE_DEFINITIONS PCRE2_STATIC)

# CLI11 and nlohmann-json are header-only. The cross compiler must not search
# /usr/include, which contains the headers of this machine's own C library, so
# the two folders are linked into a separate folder.
set(OV_HEADERS_DIR "${PROJECT_BINARY_DIR}/headers")
file(MAKE_DIRECTORY "${OV_HEADERS_DIR}")
foreach(FOLDER IN ITEMS CLI nlohmann)
  if(NOT EXISTS "/usr/include/${FOLDER}")
    message(FATAL_ERROR "The headers /usr/include/${FOLDER} are missing: run scripts/setup first")
  endif()
  file(CREATE_LINK "/usr/include/${FOLDER}" "${OV_HEADERS_DIR}/${FOLDER}" SYMBOLIC)
endforeach()
add_library(ov_headers INTERFACE)
target_include_directories(ov_headers SYSTEM INTERFACE "${OV_HEADERS_DIR}")

if(OV_BUILD_TESTS)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
  target_compile_options(gtest PRIVATE -O0)
endif()
