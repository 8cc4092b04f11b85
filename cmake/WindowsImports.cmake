# Writes what a linker needs to know of libzx.dll, from the names that the libzx of this build shows:
#   cmake -DNM=... -DLIBRARY=... -DFOLDER=... -P WindowsImports.cmake
# libzx.def tells what the library exports; tools such as dlltool make an import library of it. libzx_imports.def says
# the same in words that the GNU linker takes as they are, which needs no import library.

execute_process(
  COMMAND ${NM} -D --defined-only ${LIBRARY}
  OUTPUT_VARIABLE symbols
  COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL " T (zx|zex)[A-Za-z0-9_]+" names "${symbols}")
list(TRANSFORM names REPLACE " T " "")
list(SORT names)
if(NOT names)
  message(FATAL_ERROR "${LIBRARY} shows none of its functions.")
endif()

list(TRANSFORM names PREPEND "  " OUTPUT_VARIABLE exports)
list(JOIN exports "\n" exports)
file(WRITE ${FOLDER}/libzx.def "LIBRARY libzx.dll\nEXPORTS\n${exports}\n")

list(TRANSFORM names PREPEND "  libzx." OUTPUT_VARIABLE imports)
list(JOIN imports "\n" imports)
file(WRITE ${FOLDER}/libzx_imports.def "IMPORTS\n${imports}\n")
