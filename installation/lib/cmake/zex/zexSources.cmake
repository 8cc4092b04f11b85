# The languages of an extension's sources, and the version source that goes with them.

# CMake's names of the languages that the sources are in, each once. Files of other extensions, such as headers, and
# generator expressions have none.
function(_zex_languages_of result)
  set(languages)
  foreach(source IN LISTS ARGN)
    if(source MATCHES "\\.c$")
      list(APPEND languages C)
    elseif(source MATCHES "\\.(cpp|cxx|cc|c\\+\\+|C|CPP|CC|mm)$")
      list(APPEND languages CXX)
    elseif(source MATCHES "\\.([fF]|[fF]90|[fF]95|[fF]03|[fF]08|[fF]or|FOR)$")
      list(APPEND languages Fortran)
    elseif(source MATCHES "\\.cu$")
      list(APPEND languages CUDA)
    endif()
  endforeach()
  list(REMOVE_DUPLICATES languages)
  set(${result} "${languages}" PARENT_SCOPE)
endfunction()

# Refuses a language that project() did not enable: CMake would leave the source out without a word.
function(_zex_require_languages name)
  get_property(enabled GLOBAL PROPERTY ENABLED_LANGUAGES)
  foreach(language IN LISTS ARGN)
    if(NOT language IN_LIST enabled)
      message(FATAL_ERROR "zex_add_extension(${name}): it has sources in ${language}, which this project has not enabled. \
Write project(... LANGUAGES ... ${language}) or enable_language(${language}).")
    endif()
  endforeach()
endfunction()

# Compiles the source into the target that records release and array size in the product, in a language that the project
# has.
function(_zex_add_version_source target)
  set(folder "${ZEX_ROOT}/extern/version")
  if("Fortran" IN_LIST ARGN)
    set(source "${folder}/fortran_zexapi_version.F")
  elseif("CXX" IN_LIST ARGN OR "CUDA" IN_LIST ARGN)
    set(source "${folder}/cpp_zexapi_version.cpp")
  else()
    set(source "${folder}/c_zexapi_version.c")
  endif()
  target_sources(${target} PRIVATE "${source}")
  # It is not the project's code: its settings for headers and joined sources are not meant for it.
  set_source_files_properties(
    "${source}" TARGET_DIRECTORY ${target} PROPERTIES SKIP_PRECOMPILE_HEADERS ON SKIP_UNITY_BUILD_INCLUSION ON)
  get_property(enabled GLOBAL PROPERTY ENABLED_LANGUAGES)
  if(source MATCHES "cpp$" AND NOT "CXX" IN_LIST enabled)
    set_source_files_properties("${source}" TARGET_DIRECTORY ${target} PROPERTIES LANGUAGE CUDA)
  endif()
endfunction()
