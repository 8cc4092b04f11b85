# zex_add_extension(<name> SOURCES <file>... [RELEASE R2017b|R2018a] [COMPATIBLE_ARRAY_DIMS]
#                   [CLIENT ENGINE|ZBUILD|ZBUILD_COM] [OUTPUT_NAME <name>] [NO_INSTALL])
#
# A target whose product is what `zex` would build of the same sources: <name>.zexa64 and its like, with the include folder
# and the defines of the tree, the version source, the exports of an extension and the run-time library. Everything else is
# CMake's own: add folders, libraries, flags and properties to the target as to any other.
#
#   RELEASE                 the interface release, as the switch -R... of zex
#   COMPATIBLE_ARRAY_DIMS   32-bit array sizes, as the switch -compatibleArrayDims
#   CLIENT                  a program (ENGINE) or a plain shared library (ZBUILD, ZBUILD_COM) in place of an extension
#   OUTPUT_NAME             the product's name without its extension; the default is <name>
#   NO_INSTALL              no install rule. Without it the product goes to ZEX_INSTALL_DIR, lib/tessel/extensions by default,
#                           and a program to bin
#
# After the link `zexrun --check` compares the records in the product: parts that were compiled for different releases or
# array sizes, such as an old library, end the build.

set(ZEX_INSTALL_DIR lib/tessel/extensions CACHE STRING "Where extensions are installed, below the prefix")

function(zex_add_extension name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "COMPATIBLE_ARRAY_DIMS;NO_INSTALL" "RELEASE;CLIENT;OUTPUT_NAME" "SOURCES")
  _zex_check_arguments("zex_add_extension(${name})")
  _zex_languages_of(languages ${arg_SOURCES})
  _zex_require_languages(${name} ${languages})
  if("Fortran" IN_LIST languages AND arg_RELEASE STREQUAL "R2018a")
    message(FATAL_ERROR "zex_add_extension(${name}): Fortran cannot be built for R2018a. Leave out RELEASE.")
  endif()

  if(arg_CLIENT STREQUAL "ENGINE")
    add_executable(${name} ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES BUILD_RPATH "${ZEX_ROOT}/bin/${ZEX_ARCH}" INSTALL_RPATH "${ZEX_ROOT}/bin/${ZEX_ARCH}")
  elseif(arg_CLIENT)
    add_library(${name} SHARED ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES PREFIX "" POSITION_INDEPENDENT_CODE ON)
  else()
    add_library(${name} MODULE ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX ${ZEX_EXTENSION_SUFFIX} POSITION_INDEPENDENT_CODE ON)
    _zex_add_version_source(${name} ${languages})
    _zex_limit_exports(${name})
    _zex_check_after_link(${name})
  endif()
  if(arg_OUTPUT_NAME)
    set_target_properties(${name} PROPERTIES OUTPUT_NAME "${arg_OUTPUT_NAME}")
  endif()

  # Every extension in Fortran writes the module of zex_fortran.f90.
  set_target_properties(${name} PROPERTIES Fortran_MODULE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/${name}_modules")
  target_include_directories(${name} PRIVATE "${ZEX_ROOT}/extern/include")
  _zex_define_interface(${name} "${arg_RELEASE}" "${arg_COMPATIBLE_ARRAY_DIMS}")
  _zex_set_compile_options(${name} "${arg_COMPATIBLE_ARRAY_DIMS}")
  _zex_link_runtime(${name})
  if(NOT arg_NO_INSTALL)
    _zex_install(${name} "${arg_CLIENT}")
  endif()
endfunction()

# Looks at what the caller parsed; `call` is how messages name the call.
macro(_zex_check_arguments call)
  if(DEFINED arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "${call}: '${arg_UNPARSED_ARGUMENTS}' is no keyword here and stands behind none. Sources stand behind SOURCES; \
the other keywords are RELEASE, COMPATIBLE_ARRAY_DIMS, CLIENT, OUTPUT_NAME and NO_INSTALL.")
  endif()
  if(DEFINED arg_KEYWORDS_MISSING_VALUES)
    message(FATAL_ERROR "${call}: nothing stands behind ${arg_KEYWORDS_MISSING_VALUES}.")
  endif()
  if(NOT DEFINED arg_SOURCES)
    message(FATAL_ERROR "${call}: there is no source. Write SOURCES and at least one file.")
  endif()
  if(DEFINED arg_RELEASE AND NOT arg_RELEASE MATCHES "^(R2017b|R2018a)$")
    message(FATAL_ERROR "${call}: there is no release '${arg_RELEASE}'. RELEASE is R2017b or R2018a.")
  endif()
  if(DEFINED arg_RELEASE AND arg_COMPATIBLE_ARRAY_DIMS)
    message(FATAL_ERROR "${call}: RELEASE and COMPATIBLE_ARRAY_DIMS cannot be given together. Keep one of them.")
  endif()
  if(DEFINED arg_CLIENT AND NOT arg_CLIENT MATCHES "^(ENGINE|ZBUILD|ZBUILD_COM)$")
    message(FATAL_ERROR "${call}: there is no client '${arg_CLIENT}'. CLIENT is ENGINE, ZBUILD or ZBUILD_COM.")
  endif()
endmacro()

# The defines by which zex.h and the version source know the interface.
function(_zex_define_interface target release compatible)
  if(release)
    target_compile_definitions(${target} PRIVATE ZX_COMPAT_64 TESSEL_ZEXCMD_RELEASE=${release})
  else()
    target_compile_definitions(${target} PRIVATE TESSEL_DEFAULT_RELEASE=R2017b)
  endif()
  if(compatible)
    target_compile_definitions(${target} PRIVATE ZX_COMPAT_32)
  endif()
  target_compile_definitions(${target} PRIVATE USE_ZEX_CMD)
endfunction()

# Errors of zex.h leave a call by unwinding, also through C and Fortran. Default integers of Fortran have 64 bits, like array
# sizes, by the rules in a file of the tree. Unique symbols would keep an extension from being unloaded.
function(_zex_set_compile_options target compatible)
  target_compile_options(${target} PRIVATE $<$<COMPILE_LANG_AND_ID:C,GNU,Clang,AppleClang>:-fexceptions>
                                           $<$<COMPILE_LANG_AND_ID:Fortran,GNU>:-fexceptions>)
  if(NOT compatible)
    set(rules "${ZEX_ROOT}/bin/${ZEX_ARCH}/zexopts/gfortran.specs")
    target_compile_options(${target} PRIVATE "$<$<COMPILE_LANG_AND_ID:Fortran,GNU>:-specs=${rules}>")
  endif()
  if(ZEX_ARCH STREQUAL "glnxa64")
    target_compile_options(${target} PRIVATE $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-fno-gnu-unique>
                                             $<$<COMPILE_LANG_AND_ID:CUDA,NVIDIA>:-Xcompiler=-fno-gnu-unique>)
  endif()
endfunction()

# An extension shows its entry point and its record, and calls inside it stay inside.
function(_zex_limit_exports target)
  set(folder "${ZEX_ROOT}/bin/${ZEX_ARCH}/zexopts")
  if(MINGW)
    target_link_options(${target} PRIVATE "LINKER:--export-all-symbols,--version-script=${folder}/exports.map")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${folder}/exports.map")
  elseif(APPLE)
    target_link_options(${target} PRIVATE "LINKER:-exported_symbols_list,${folder}/exports.txt")
  elseif(UNIX)
    target_link_options(${target} PRIVATE "LINKER:-Bsymbolic,--version-script=${folder}/exports.map")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${folder}/exports.map")
  endif()
endfunction()

# The functions of zex.h. A product that calls none of them does not need the library; one that does finds it in the process
# that loads it.
function(_zex_link_runtime target)
  if(MINGW)
    # A Windows machine does not have the run-time libraries of this compiler: they go into the product.
    target_link_options(${target} PRIVATE -static)
    target_link_libraries(${target} PRIVATE "${ZEX_ROOT}/extern/lib/${ZEX_ARCH}/libzx_imports.def")
  elseif(WIN32)
    target_link_libraries(${target} PRIVATE "${ZEX_ROOT}/extern/lib/${ZEX_ARCH}/libzx.lib")
  elseif(APPLE)
    target_link_libraries(${target} PRIVATE "-L${ZEX_ROOT}/bin/${ZEX_ARCH} -lzx")
  else()
    target_link_libraries(${target} PRIVATE "-L${ZEX_ROOT}/bin/${ZEX_ARCH}" "-Wl,--push-state,--as-needed,-lzx,--pop-state")
    _zex_refuse_missing_symbols(${target})
  endif()
endfunction()

# What is missing shows at the link and not at the first call. Libraries of sanitizers come with the program alone.
function(_zex_refuse_missing_symbols target)
  if("${CMAKE_C_FLAGS} ${CMAKE_CXX_FLAGS} ${CMAKE_MODULE_LINKER_FLAGS}" MATCHES "-fsanitize")
    return()
  endif()
  set(sanitizers "$<FILTER:$<TARGET_PROPERTY:${target},COMPILE_OPTIONS>,INCLUDE,^-fsanitize>")
  target_link_options(${target} PRIVATE "$<$<STREQUAL:${sanitizers},>:LINKER:--no-undefined>")
endfunction()

function(_zex_install target client)
  set(programs "${ZEX_INSTALL_DIR}")
  if(client STREQUAL "ENGINE")
    set(programs bin)
  endif()
  install(TARGETS ${target} LIBRARY DESTINATION "${ZEX_INSTALL_DIR}" RUNTIME DESTINATION "${programs}"
          ARCHIVE DESTINATION "${ZEX_INSTALL_DIR}")
endfunction()

# The check that zex makes of what it links.
function(_zex_check_after_link target)
  find_program(ZEX_RUN zexrun HINTS "${ZEX_HOST_BIN}" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  mark_as_advanced(ZEX_RUN)
  if(ZEX_RUN)
    add_custom_command(TARGET ${target} POST_BUILD COMMAND "${ZEX_RUN}" --check "$<TARGET_FILE:${target}>" VERBATIM)
  else()
    message(WARNING "${ZEX_HOST_BIN} has no zexrun, so products are not checked after the link.")
  endif()
endfunction()
