# Installs what hosts get into the folder SDK and looks through it: everything that belongs there,
# and nothing else. cmake -DBUILD=folder -DSDK=folder -DWINDOWS=bool -P sdk.cmake
file(REMOVE_RECURSE "${SDK}")
set(component --component sdk)
if(WINDOWS) # all that the build has to install
    set(component "")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${SDK}" ${component}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# kinds of files, and how many there are; "some" where that is another's choice
set(wanted
    "include/quarvo/[a-z_]+\\.h" 6
    "lib/cmake/QuarvoScanContent/QuarvoScanContentConfig(Version)?\\.cmake" 2
    "lib/cmake/QuarvoScanContent/QuarvoScanContentTargets(-[a-z]+)?\\.cmake" 2
    "bin/theme/light/SDCardScanContentPlugin/[a-z]+\\.qss" 11
    "bin/theme/dark/SDCardScanContentPlugin/[a-z]+\\.qss" 11
    "bin/LottieFiles/Scanning/data\\.json" 1
    "bin/translations/quarvo_[a-z]+(_[A-Z]+)?\\.qm" 17)
if(WINDOWS)
    list(APPEND wanted
        "bin/plugins/SDCardScanContentPlugin\\.dll" 1
        "bin/(QuarvoItem|ZVLottie|ZVLang)\\.dll" 3
        "bin/Qt5(Core|Gui|Widgets|Concurrent)\\.dll" 4
        "bin/librlottie\\.dll" 1
        "bin/lib(gcc_s_seh-1|stdc\\+\\+-6|winpthread-1)\\.dll" 3
        "bin/licenses/third-party\\.md" 1
        "bin/licenses/(Qt|rlottie|gcc|mingw-w64|LGPL-3|GPL-3)\\.txt" 6
        "bin/platforms/qwindows\\.dll" 1
        "bin/platforms/q(offscreen|minimal)\\.dll" some
        "bin/imageformats/qjpeg\\.dll" 1
        "bin/(imageformats|styles|iconengines)/q[a-z]+\\.dll" some
        "lib/lib(QuarvoItem|ZVLottie|ZVLang)\\.dll\\.a" 3)
else()
    list(APPEND wanted
        "lib/lib(QuarvoItem|ZVLottie|ZVLang)\\.so" 3
        "lib/quarvo/SDCardScanContentPlugin\\.so" 1)
endif()

file(GLOB_RECURSE files RELATIVE "${SDK}" "${SDK}/*")
while(wanted)
    list(POP_FRONT wanted kind count)
    set(found "${files}")
    list(FILTER found INCLUDE REGEX "^${kind}$")
    list(LENGTH found number)
    if(number EQUAL 0 OR NOT (count STREQUAL "some" OR number EQUAL count))
        message(SEND_ERROR "${count} of ${kind} wanted, ${number} found: ${found}")
    endif()
    list(FILTER files EXCLUDE REGEX "^${kind}$")
endwhile()
foreach(file IN LISTS files)
    message(SEND_ERROR "installed, but nobody's: ${file}")
endforeach()
