# One helper per kind of target, so that a target is one call and all of them are built alike.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Programs, tests and libraries share one folder: the theme folders, the animation and the plug-in
# are found relative to the executable, exactly as in an installation.
set(QUARVO_BIN_DIR "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${QUARVO_BIN_DIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${QUARVO_BIN_DIR}")
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../lib;$ORIGIN/..")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

add_compile_definitions(QT_DEPRECATED_WARNINGS
                        QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH)

add_library(scan_warnings INTERFACE)
if(MSVC)
    # whatever links the warnings or not: texts are UTF-8, and the language is the standard's
    add_compile_options(/utf-8 /permissive- /Zc:__cplusplus /bigobj)
    target_compile_options(scan_warnings INTERFACE /W4 $<$<BOOL:${QUARVO_WERROR}>:/WX>)
else()
    target_compile_options(scan_warnings INTERFACE
        -Wall -Wextra -Wshadow -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
        # GCC 12 takes what QByteArray::data() returns for an empty region when it optimises
        $<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow>
        $<$<BOOL:${QUARVO_WERROR}>:-Werror>)
endif()

if(QUARVO_SANITIZE)
    add_compile_options(-fsanitize=${QUARVO_SANITIZE} -fno-omit-frame-pointer -g)
    add_link_options(-fsanitize=${QUARVO_SANITIZE})
    if(QUARVO_SANITIZE MATCHES "undefined")
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
endif()

# scan_precompile(TARGET): reads what most files include once, for all targets that ask for it. The
# first of them brings the headers; the others need no fewer libraries. Not for systems on which
# libraries and programs are compiled differently.
option(QUARVO_PRECOMPILE "Precompile headers: a build from nothing is faster" OFF)
function(scan_precompile target)
    if(NOT QUARVO_PRECOMPILE)
        return()
    endif()
    get_property(owner GLOBAL PROPERTY SCAN_PRECOMPILED)
    if(owner)
        target_precompile_headers(${target} REUSE_FROM ${owner})
    else()
        target_precompile_headers(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/precompiled.h")
        set_property(GLOBAL PROPERTY SCAN_PRECOMPILED ${target})
    endif()
endfunction()

# What is Qt's own and not ours to mend; part of every test's environment.
set(SCAN_SANITIZER_ENVIRONMENT
    "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp")

# A DLL is called by its name on every Windows compiler, MinGW's "lib" in front of it or not.
function(scan_plain_name target)
    if(WIN32)
        set_target_properties(${target} PROPERTIES PREFIX "")
    endif()
endfunction()

# scan_add_test(NAME [SOURCES ...] [LIBS ...] [TIMEOUT seconds])
# tests/<folder>/NAME.cpp with Qt Test, headless and under a time limit. SOURCES are further files.
function(scan_add_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBS" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE scancontent scanimages Qt5::Test scan_warnings ${arg_LIBS})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${QUARVO_BIN_DIR}")
    scan_precompile(${name})
    add_test(NAME ${name} COMMAND ${name})
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
    set_tests_properties(${name} PROPERTIES
        LABELS ${folder}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-config/${name};${SCAN_SANITIZER_ENVIRONMENT}"
        TIMEOUT ${arg_TIMEOUT})
endfunction()

# scan_add_benchmark(NAME [ONLY_BY_HAND] [LIBS ...] [BRIEFLY arguments]): benchmarks/NAME.cpp with
# Google Benchmark; run by hand. Where nobody does, on a system that is built for from another one, a
# test starts it with the arguments that make it brief, unless nothing does.
function(scan_add_benchmark name)
    cmake_parse_arguments(arg "ONLY_BY_HAND" "" "LIBS;BRIEFLY" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE scancontent scanimages benchmark::benchmark scan_warnings ${arg_LIBS})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    scan_precompile(${name})
    if(CMAKE_CROSSCOMPILING AND NOT arg_ONLY_BY_HAND)
        if(NOT arg_BRIEFLY)
            set(arg_BRIEFLY --benchmark_list_tests)
        endif()
        add_test(NAME ${name} COMMAND ${name} ${arg_BRIEFLY})
        set_tests_properties(${name} PROPERTIES
            LABELS benchmarks ENVIRONMENT QT_QPA_PLATFORM=offscreen TIMEOUT 120)
    endif()
endfunction()

# scan_export_only(TARGET FILE): what leaves a library is named in the linker's map FILE. Hidden
# visibility alone lets templates of the standard library out, others with every compiler. A DLL
# exports what is declared so and needs no map.
function(scan_export_only target file)
    if(UNIX AND NOT APPLE)
        cmake_path(ABSOLUTE_PATH file)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${file}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${file}")
    endif()
endfunction()
