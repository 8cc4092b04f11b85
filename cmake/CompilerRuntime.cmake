# A tree for Windows carries the run-time libraries of the compiler that built it: programs find them beside themselves.
# They are shared, so that an exception of one library is the same type in all others.
if(MINGW)
  foreach(library libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library} OUTPUT_VARIABLE path
                    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT IS_ABSOLUTE "${path}")
      message(FATAL_ERROR "${CMAKE_CXX_COMPILER} has no ${library}; builds for 64-bit Windows need it.")
    endif()
    file(COPY ${path} DESTINATION ${ZEX_TREE_BIN})
    install(FILES ${path} DESTINATION bin/${ZEX_ARCH})
  endforeach()
endif()
