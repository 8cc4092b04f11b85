# The CMake package for extensions: find_package(zex) gives zex_add_extension and zex_add_test.
#
# It is found where CMAKE_PREFIX_PATH names the tree, or by find_package(zex HINTS $ENV{TESSEL_ROOT}), and works wherever
# the tree was moved.

get_filename_component(ZEX_ROOT "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

include("${CMAKE_CURRENT_LIST_DIR}/zexPlatform.cmake")
if(NOT EXISTS "${ZEX_ROOT}/extern/include/zex.h" OR NOT EXISTS "${ZEX_ROOT}/bin/${ZEX_ARCH}/zexopts")
  set(zex_FOUND FALSE)
  set(zex_NOT_FOUND_MESSAGE
      "The tree at ${ZEX_ROOT} has no extern/include/zex.h or no bin/${ZEX_ARCH}/zexopts, so nothing can be built for ${ZEX_ARCH} \
with it. Install the tree again, or name a complete one by CMAKE_PREFIX_PATH.")
  return()
endif()

include("${CMAKE_CURRENT_LIST_DIR}/zexSources.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/zexExtension.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/zexTest.cmake")
