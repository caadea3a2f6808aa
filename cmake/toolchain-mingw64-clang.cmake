# Cross-compiles for 64-bit Windows with clang, to check the code with a second
# compiler. Headers, libraries and linker are those of MinGW-w64's GCC, which clang
# does not find by itself.
include("${CMAKE_CURRENT_LIST_DIR}/toolchain-mingw64.cmake")
execute_process(
  COMMAND "${CMAKE_CXX_COMPILER}" -print-libgcc-file-name
  OUTPUT_VARIABLE OV_LIBGCC
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
cmake_path(GET OV_LIBGCC PARENT_PATH OV_GCC)
set(OV_MINGW "/usr/${OV_TRIPLE}")
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_C_COMPILER_TARGET ${OV_TRIPLE})
set(CMAKE_CXX_COMPILER_TARGET ${OV_TRIPLE})
set(CMAKE_C_FLAGS_INIT "-isystem ${OV_MINGW}/include")
string(JOIN " " CMAKE_CXX_FLAGS_INIT -nostdinc++ "-isystem ${OV_GCC}/include/c++"
       "-isystem ${OV_GCC}/include/c++/${OV_TRIPLE}" "-isystem ${OV_MINGW}/include"
       # clang also reports deprecated functions used by the library's own headers.
       -Wno-deprecated-declarations)
string(JOIN " " CMAKE_EXE_LINKER_FLAGS_INIT "-B${OV_GCC}" "-L${OV_GCC}" "-L${OV_MINGW}/lib" -pthread)
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")
