# The only file that selects compiler warnings. Every warning is an error, with
# both compilers.
add_library(ov_warnings INTERFACE)
target_compile_options(
  ov_warnings
  INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wnull-dereference
            -Wimplicit-fallthrough
            -Werror>
            $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wduplicated-cond
            -Wlogical-op>)
# For Linux, GCC 12 sees a null pointer in insertions into vectors of texts when it optimises.
if(NOT WIN32)
  target_compile_options(ov_warnings INTERFACE $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<CONFIG:Release>>:-Wno-error=null-dereference>)
endif()
