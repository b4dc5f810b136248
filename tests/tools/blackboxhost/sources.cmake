# Also for a host in the tree that is compiled with other headers.
set(blackbox_sources "")
foreach(name card causes desktop ear hand main operations report side stage)
    list(APPEND blackbox_sources "${CMAKE_CURRENT_LIST_DIR}/${name}.cpp")
endforeach()
cmake_path(SET blackbox_includes NORMALIZE "${CMAKE_CURRENT_LIST_DIR}/../..")
set(system unix)
if(WIN32)
    set(system windows)
endif()
list(APPEND blackbox_sources "${blackbox_includes}support/usersettings_${system}.cpp")
# its class has members of types that only a file of its own may hide
set_source_files_properties("${blackbox_includes}support/usersettings_${system}.cpp"
    PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
