# The warnings of all of our own code, which are errors where CMAKE_COMPILE_WARNING_AS_ERROR says so, as the presets of
# developers do; the sanitizers are a choice of the whole build.

add_library(zex_warnings INTERFACE)
if(NOT MSVC)
  target_compile_options(zex_warnings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlaps inside its own string operations that are none.
  target_compile_options(zex_warnings INTERFACE -Wno-restrict)
endif()

if(ZEX_SANITIZE OR ZEX_FUZZ)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Instrumented code of the standard library's regular expressions looks uninitialised to the compiler.
    target_compile_options(zex_warnings INTERFACE -Wno-maybe-uninitialized)
  endif()
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(ZEX_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
