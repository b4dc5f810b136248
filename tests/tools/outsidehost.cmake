# Builds the host in SOURCE, which knows nothing but the installed SDK, in the folder WORK and runs
# its PROGRAM with ARGUMENTS, in which PLUGIN stands for the plug-in's file.
function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(flags "")
if(SANITIZE) # a program that loads a sanitized library has to be sanitized itself
    set(flags "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}")
endif()
set(system "-DCMAKE_CXX_COMPILER=${COMPILER}")
if(TOOLCHAIN)
    set(system "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DQUARVO_WINDOWS_ROOT=${ROOT}"
        "-DQuarvoScanContent_DIR=${SDK}/lib/cmake/QuarvoScanContent")
endif()

file(REMOVE_RECURSE "${WORK}")
run(${CMAKE_COMMAND} -S "${SOURCE}" -B "${WORK}/build" -G Ninja
    -DCMAKE_PREFIX_PATH=${SDK} -DCMAKE_BUILD_TYPE=${CONFIG} ${system} ${flags})
run(${CMAKE_COMMAND} --build "${WORK}/build")

set(start "${WORK}/build/${PROGRAM}")
set(plugin "${SDK}/lib/quarvo/SDCardScanContentPlugin.so")
if(TOOLCHAIN)
    # As an application is shipped, to a folder as users have them; no DLL comes from elsewhere.
    set(application "${WORK}/Ein Ort für Fotos")
    file(COPY "${SDK}/bin/" "${WORK}/build/${PROGRAM}.exe" DESTINATION "${application}")
    set(start "${EMULATOR}" "${application}/${PROGRAM}.exe")
    set(plugin "${application}/plugins/SDCardScanContentPlugin.dll")
    unset(ENV{WINEPATH})
    set(ENV{PATH} "/usr/bin:/bin")
    if(NOT DEFINED ENV{WINEPREFIX})
        set(ENV{WINEPREFIX} "${BUILD}/wine")
    endif()
else()
    set(ENV{TMPDIR} "${WORK}") # thumbnails of other runs are not ours
endif()
separate_arguments(arguments UNIX_COMMAND "${ARGUMENTS}")
list(TRANSFORM arguments REPLACE "^PLUGIN$" "${plugin}")
execute_process(COMMAND ${start} ${arguments} WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ended with ${result}")
endif()
