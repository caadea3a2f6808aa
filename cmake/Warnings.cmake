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
