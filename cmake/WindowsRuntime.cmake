# The DLLs of Qt and of the compiler, and Qt's plug-ins, beside the programs: Windows looks nowhere
# else. For builds that cross over; on Windows itself windeployqt does it.

set(windows_dlls "")
foreach(name Qt5Core Qt5Gui Qt5Widgets Qt5Concurrent Qt5Test librlottie
             libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
    find_file(dll_${name} ${name}.dll PATH_SUFFIXES bin REQUIRED)
    list(APPEND windows_dlls "${dll_${name}}")
endforeach()
cmake_path(GET dll_Qt5Core PARENT_PATH windows_qt_plugins)
cmake_path(SET windows_qt_plugins NORMALIZE "${windows_qt_plugins}/../plugins")

add_custom_target(windows_runtime ALL
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${windows_dlls} "${QUARVO_BIN_DIR}"
    COMMAND ${CMAKE_COMMAND} -E copy_directory "${windows_qt_plugins}" "${QUARVO_BIN_DIR}"
    COMMENT "Copying the DLLs" VERBATIM)

# an application ships them beside itself
list(FILTER windows_dlls EXCLUDE REGEX "Qt5Test")
install(FILES ${windows_dlls} DESTINATION bin COMPONENT sdk)
install(DIRECTORY "${windows_qt_plugins}/" DESTINATION bin COMPONENT sdk)

# Their terms go with them, as Debian, whose sources they are built from, has collected them.
foreach(part
        "Qt libqt5core5a/copyright" "rlottie librlottie-dev/copyright"
        "gcc gcc-mingw-w64-base/copyright" "mingw-w64 mingw-w64-common/copyright"
        "LGPL-3 LGPL-3" "GPL-3 GPL-3")
    separate_arguments(part)
    list(POP_FRONT part name file)
    find_file(licence_${name} "${file}" PATHS /usr/share/doc /usr/share/common-licenses
        NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    if(licence_${name})
        install(FILES "${licence_${name}}" DESTINATION bin/licenses RENAME ${name}.txt COMPONENT sdk)
    else()
        message(WARNING "the terms of ${name} are not on this machine: add them to what you ship")
    endif()
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/docs/third-party.md" DESTINATION bin/licenses COMPONENT sdk)
