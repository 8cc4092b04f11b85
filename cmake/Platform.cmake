# Extension tag and architecture of the build, and the choice between sources of one platform.

if(WIN32)
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(ZEX_PLATFORM_TAG zexw64)
    set(ZEX_ARCH win64)
  else()
    set(ZEX_PLATFORM_TAG zexw32)
    set(ZEX_ARCH win32)
  endif()
elseif(APPLE)
  set(ZEX_PLATFORM_TAG zexmaci64)
  set(ZEX_ARCH maci64)
else()
  set(ZEX_PLATFORM_TAG zexa64)
  set(ZEX_ARCH glnxa64)
endif()

set(ZEX_EXTENSION_SUFFIX .${ZEX_PLATFORM_TAG})

# The tree that runs in place; `cmake --install` writes the same one to a prefix.
set(ZEX_TREE ${CMAKE_BINARY_DIR}/tessel)
set(ZEX_TREE_BIN ${ZEX_TREE}/bin/${ZEX_ARCH})

# How a loader is told to look beside what it loads.
if(APPLE)
  set(ZEX_BESIDE_ITSELF "@loader_path")
else()
  set(ZEX_BESIDE_ITSELF "$ORIGIN")
endif()

# Builds a library straight into the tree, found there by what lies beside it. Its name carries the version that programs
# and extensions stay with; what links it goes by the plain name. Import libraries of DLLs go to the build folder.
function(zex_library_in_tree target)
  set_target_properties(
    ${target}
    PROPERTIES SOVERSION ${PROJECT_VERSION_MAJOR}
               LIBRARY_OUTPUT_DIRECTORY ${ZEX_TREE_BIN}
               RUNTIME_OUTPUT_DIRECTORY ${ZEX_TREE_BIN}
               ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib
               BUILD_WITH_INSTALL_RPATH ON
               INSTALL_RPATH "${ZEX_BESIDE_ITSELF}")
endfunction()

# Lets a library show what a version script names and nothing else: templates of the C++ library would come out
# otherwise.
function(zex_show_only target script)
  if(UNIX AND NOT APPLE)
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${script})
    target_link_options(${target} PRIVATE -Wl,--version-script=${CMAKE_CURRENT_SOURCE_DIR}/${script})
  endif()
endfunction()

# Drops from a list of sources, those of tests among them, what ends in the suffix of another platform.
function(zex_keep_platform_sources list)
  if(WIN32)
    list(FILTER ${list} EXCLUDE REGEX "_posix(_test)?\\.cpp$")
  else()
    list(FILTER ${list} EXCLUDE REGEX "_windows(_test)?\\.cpp$")
  endif()
  set(${list} ${${list}} PARENT_SCOPE)
endfunction()
