# zex_add_test(NAME <test> EXTENSION <target> [INPUTS <value>...] EXPECTS <value>... [TOLERANCE <number>])
#
# A test for CTest: calls the extension with the inputs through `zexrun` and compares its outputs, in their order. Values
# are written as for zexrun: 3, "[1 2; 3 4]", "'text'", "int8([1 2])". TOLERANCE is how far a number may lie off, relative
# to numbers above 1; the default is 0.
#
# Where CMake builds for Windows on another system, CMAKE_CROSSCOMPILING_EMULATOR runs the tree's program for Windows.

function(zex_add_test)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;EXTENSION;TOLERANCE" "INPUTS;EXPECTS")
  foreach(keyword NAME EXTENSION EXPECTS)
    if(NOT DEFINED arg_${keyword})
      message(FATAL_ERROR "zex_add_test(${arg_NAME}): ${keyword} is missing. Write NAME, EXTENSION and EXPECTS, each with a value.")
    endif()
  endforeach()
  if(DEFINED arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "zex_add_test(${arg_NAME}): '${arg_UNPARSED_ARGUMENTS}' is no keyword here and stands behind none. The \
keywords are NAME, EXTENSION, INPUTS, EXPECTS and TOLERANCE.")
  endif()
  if(NOT TARGET ${arg_EXTENSION})
    message(FATAL_ERROR "zex_add_test(${arg_NAME}): '${arg_EXTENSION}' is no target. Name one of zex_add_extension, after that call.")
  endif()

  set(program "${ZEX_ROOT}/bin/${ZEX_ARCH}/zexrun${CMAKE_EXECUTABLE_SUFFIX}")
  if(NOT EXISTS "${program}")
    message(FATAL_ERROR "zex_add_test(${arg_NAME}): ${program} is missing, which calls extensions for ${ZEX_ARCH}. Install a \
complete tree for that architecture.")
  endif()
  set(words ${CMAKE_CROSSCOMPILING_EMULATOR} "${program}" "$<TARGET_FILE:${arg_EXTENSION}>")
  foreach(input IN LISTS arg_INPUTS)
    _zex_append_word(words "${input}")
  endforeach()
  foreach(value IN LISTS arg_EXPECTS)
    list(APPEND words --expects)
    _zex_append_word(words "${value}")
  endforeach()
  if(DEFINED arg_TOLERANCE)
    list(APPEND words --tolerance ${arg_TOLERANCE})
  endif()
  add_test(NAME ${arg_NAME} COMMAND ${words})
endfunction()

# A semicolon separates the rows of a matrix as well as the words of a list.
function(_zex_append_word list word)
  string(REPLACE ";" "\\;" word "${word}")
  set(words ${${list}})
  list(APPEND words "${word}")
  set(${list} "${words}" PARENT_SCOPE)
endfunction()
