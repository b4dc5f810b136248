# Programs that a build for another system runs here: what Qt's packages for that system lack, and
# the tools of our own that have to be built first.

find_program(QUARVO_LRELEASE NAMES lrelease lrelease-qt5 PATHS /usr/lib/qt5/bin REQUIRED)
add_executable(Qt5::lrelease IMPORTED GLOBAL)
set_target_properties(Qt5::lrelease PROPERTIES IMPORTED_LOCATION "${QUARVO_LRELEASE}")

find_program(QUARVO_LUPDATE NAMES lupdate lupdate-qt5 PATHS /usr/lib/qt5/bin REQUIRED)
add_executable(Qt5::lupdate IMPORTED GLOBAL)
set_target_properties(Qt5::lupdate PROPERTIES IMPORTED_LOCATION "${QUARVO_LUPDATE}")

include(ExternalProject)

# scan_native_tool(NAME FOLDER): the CMake project in FOLDER, built for this machine.
function(scan_native_tool name folder)
    set(build "${CMAKE_BINARY_DIR}/native/${name}")
    ExternalProject_Add(native-${name}
        SOURCE_DIR "${folder}"
        BINARY_DIR "${build}"
        CMAKE_ARGS -DCMAKE_BUILD_TYPE=Release
        BUILD_BYPRODUCTS "${build}/${name}"
        BUILD_ALWAYS ON
        INSTALL_COMMAND "")
    add_executable(${name} IMPORTED GLOBAL)
    set_target_properties(${name} PROPERTIES IMPORTED_LOCATION "${build}/${name}")
    add_dependencies(${name} native-${name})
endfunction()
