function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(flags "")
if(SANITIZE) # a program that loads a sanitized library has to be sanitized itself
    set(flags "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}")
endif()

file(REMOVE_RECURSE "${WORK}")
run(${CMAKE_COMMAND} --install "${BUILD}" --prefix "${WORK}/sdk" --component sdk)
run(${CMAKE_COMMAND} -S "${EXAMPLE}" -B "${WORK}/build" -G Ninja
    -DCMAKE_PREFIX_PATH=${WORK}/sdk -DCMAKE_BUILD_TYPE=${CONFIG}
    -DCMAKE_CXX_COMPILER=${COMPILER} ${flags})
run(${CMAKE_COMMAND} --build "${WORK}/build")
set(ENV{TMPDIR} "${WORK}") # thumbnails of other runs are not ours
run("${WORK}/build/example-host" --once)
