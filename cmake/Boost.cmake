# Header-only use; 1.76 is the first release whose Regex needs no library.

if(CMAKE_CROSSCOMPILING)
  # The headers of the building machine serve, but nothing else of its include folder may come along.
  find_path(ZEX_BOOST_OF_BUILDER boost/version.hpp PATHS /usr/include /usr/local/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
  if(NOT ZEX_BOOST_OF_BUILDER)
    message(FATAL_ERROR "The headers of Boost were not found in /usr/include or /usr/local/include.")
  endif()
  set(Boost_INCLUDE_DIR ${CMAKE_BINARY_DIR}/boost-headers)
  file(MAKE_DIRECTORY ${Boost_INCLUDE_DIR})
  file(CREATE_LINK ${ZEX_BOOST_OF_BUILDER}/boost ${Boost_INCLUDE_DIR}/boost SYMBOLIC)
endif()

find_package(Boost 1.76 REQUIRED)
if(WIN32)
  # Regex declares a mutex there that only its compiled form defines. Nothing here matches on two threads.
  target_compile_definitions(Boost::headers INTERFACE BOOST_DISABLE_THREADS)
endif()
