# Windows programs, built on Debian with MinGW-w64 against what tools/windows/get-qt
# and get-libraries provide.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

# The variant with POSIX threads: std::thread and std::mutex exist in no other.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# qt5-mingw/ with Qt, libs/ with what tools/windows/get-libraries has built.
set(QUARVO_WINDOWS_ROOT "${CMAKE_CURRENT_LIST_DIR}/../../build/windows-root"
    CACHE PATH "What to build against")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QUARVO_WINDOWS_ROOT)
get_filename_component(QUARVO_WINDOWS_ROOT "${QUARVO_WINDOWS_ROOT}" ABSOLUTE)

# the libraries first: they take the place of what an archive of Qt may bring along
set(CMAKE_FIND_ROOT_PATH "${QUARVO_WINDOWS_ROOT}/libs" "${QUARVO_WINDOWS_ROOT}/qt5-mingw"
    /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../../tools/windows/run-in-wine")
