# GoogleTest, and the way test programs run. A build for Windows on another system runs them under Wine, where every
# start costs: there a program is one test, elsewhere every test case of it is one.

if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest REQUIRED)
  include(GoogleTest)
else()
  # Libraries of the building machine do not fit, but the sources that come with them do.
  find_path(ZEX_GOOGLETEST_SOURCES googlemock/CMakeLists.txt PATHS /usr/src/googletest NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  if(NOT ZEX_GOOGLETEST_SOURCES)
    message(FATAL_ERROR "The sources of GoogleTest were not found in /usr/src/googletest.")
  endif()
  set(INSTALL_GTEST OFF)
  # Its warnings are not ours to mend.
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
  add_subdirectory(${ZEX_GOOGLETEST_SOURCES} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
  unset(CMAKE_COMPILE_WARNING_AS_ERROR)

  find_program(ZEX_WINE_SERVER NAMES wineserver)
  if(NOT CMAKE_CROSSCOMPILING_EMULATOR OR NOT ZEX_WINE_SERVER)
    message(FATAL_ERROR "The tests run under Wine, which was not found; -DZEX_BUILD_TESTS=OFF builds without them.")
  endif()
endif()

# How a program of the other system names a file of the building machine.
function(zex_path_for_tests path result)
  if(CMAKE_CROSSCOMPILING)
    string(PREPEND path "Z:")
  endif()
  set(${result} "${path}" PARENT_SCOPE)
endfunction()

# Settings of Wine for a test: a system of its own in the build folder, the libraries of the tree, UTF-8 for the names
# of files, and no debugger, under which a program that crashed sometimes counts as one that ended well.
function(zex_set_wine_environment test)
  zex_path_for_tests(${ZEX_TREE_BIN} libraries)
  set_tests_properties(
    ${test} PROPERTIES ENVIRONMENT "WINEPREFIX=${CMAKE_BINARY_DIR}/wine-prefix;WINEDEBUG=-all;WINEDLLOVERRIDES=mscoree,mshtml,winedbg.exe=;\
WINEPATH=${libraries};LC_ALL=C.UTF-8")
endfunction()

# Registers the cases of a test program.
function(zex_add_tests program)
  if(NOT CMAKE_CROSSCOMPILING)
    gtest_discover_tests(${program} DISCOVERY_MODE PRE_TEST ${ARGN})
    return()
  endif()
  add_test(NAME ${program} COMMAND ${program})
  set_tests_properties(${program} PROPERTIES FIXTURES_REQUIRED wine)
  zex_set_wine_environment(${program})
endfunction()

if(CMAKE_CROSSCOMPILING)
  # The server is started anew once the system is set up, which would slow down the first programs otherwise, and kept
  # alive, since a program that starts while it ends fails. The shell that takes the driver's lines is told by the system's
  # registry, which has the last word. Whatever Wine starts beside the first program keeps that one's output open: it must
  # not be that of the test, which would wait. Network folders lie below "unc".
  zex_path_for_tests(${CMAKE_CURRENT_BINARY_DIR}/stand_in_shell.exe shell)
  string(REPLACE "/" "\\" shell "${shell}")
  set(begin [[exec > /dev/null 2>&1; "$1" --kill
    "$0" wineboot.exe --init && mkdir -p "$WINEPREFIX/dosdevices/unc/zex/share" &&
    "$0" reg.exe add "$2" /v ComSpec /d "$3" /f && "$1" --wait &&
    "$1" --persistent=60 && "$0" wineboot.exe]])
  set(settings [[HKLM\SYSTEM\CurrentControlSet\Control\Session Manager\Environment]])
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/wine-prefix)
  add_test(NAME wine.begin COMMAND sh -c "${begin}" ${CMAKE_CROSSCOMPILING_EMULATOR} ${ZEX_WINE_SERVER} "${settings}" "${shell}")
  add_test(NAME wine.end COMMAND ${ZEX_WINE_SERVER} --kill)
  set_tests_properties(wine.begin PROPERTIES FIXTURES_SETUP wine TIMEOUT 300)
  set_tests_properties(wine.end PROPERTIES FIXTURES_CLEANUP wine)
  zex_set_wine_environment(wine.begin)
  zex_set_wine_environment(wine.end)
endif()
