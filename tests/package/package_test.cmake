# Installs the build to a prefix, builds the embedder against the package found there and runs it.
# Wants: BUILD (the build folder), SOURCE (the embedder), WORK (a folder of this test's own).

function(step)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${WORK} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/temporary)
file(WRITE ${WORK}/embedded.c "void zexFunction(void) {}\n")
set(ENV{TMPDIR} ${WORK}/temporary)
set(ENV{TESSEL_PREFDIR} ${WORK}/temporary)

step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
step(${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/build -DCMAKE_PREFIX_PATH=${WORK}/prefix
     "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}")
step(${CMAKE_COMMAND} --build ${WORK}/build)
step(${WORK}/build/embedder)
if(NOT EXISTS ${WORK}/embedded.zexa64)
  message(FATAL_ERROR "the embedder's build left no product")
endif()
# What was linked asks for the version, and never for the name that the next version takes over.
execute_process(COMMAND readelf -d ${WORK}/build/embedder OUTPUT_VARIABLE needed COMMAND_ERROR_IS_FATAL ANY)
if(NOT needed MATCHES "\\[libzexcmd\\.so\\.1\\]")
  message(FATAL_ERROR "the embedder does not ask for libzexcmd.so.1:\n${needed}")
endif()
# The installed tree stands by itself, wherever it was moved.
file(RENAME ${WORK}/prefix ${WORK}/moved)
file(REMOVE ${WORK}/embedded.zexa64)
step(${WORK}/moved/bin/glnxa64/zex -silent embedded.c)
if(NOT EXISTS ${WORK}/embedded.zexa64)
  message(FATAL_ERROR "the installed program left no product")
endif()
