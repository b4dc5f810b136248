function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(flags "")
if(SANITIZE) # a program that loads a sanitized library has to be sanitized itself
    set(flags "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}")
endif()

set(system "-DCMAKE_CXX_COMPILER=${COMPILER}")
if(TOOLCHAIN)
    set(system "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DQUARVO_WINDOWS_ROOT=${ROOT}")
    list(APPEND system "-DQuarvoScanContent_DIR=${WORK}/sdk/lib/cmake/QuarvoScanContent")
endif()

file(REMOVE_RECURSE "${WORK}")
run(${CMAKE_COMMAND} --install "${BUILD}" --prefix "${WORK}/sdk" --component sdk)
run(${CMAKE_COMMAND} -S "${EXAMPLE}" -B "${WORK}/build" -G Ninja
    -DCMAKE_PREFIX_PATH=${WORK}/sdk -DCMAKE_BUILD_TYPE=${CONFIG}
    ${system} ${flags})
run(${CMAKE_COMMAND} --build "${WORK}/build")
set(ENV{TMPDIR} "${WORK}") # thumbnails of other runs are not ours
if(TOOLCHAIN) # Windows finds DLLs beside a program, so it goes where the SDK has them
    file(COPY "${WORK}/build/example-host.exe" DESTINATION "${WORK}/sdk/bin")
    run(${EMULATOR} "${WORK}/sdk/bin/example-host.exe" --once)
else()
    run("${WORK}/build/example-host" --once)
endif()
