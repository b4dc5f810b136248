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
