# The compiler that makes Windows programs on Debian, and where the libraries for them are: `./build-windows` makes those.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The variant whose standard library has threads.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# A program that needs no library beside it but those of every Windows.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

if(NOT DEFINED KELVO_WINDOWS_LIBRARIES)
    if(DEFINED ENV{KELVO_WINDOWS_LIBRARIES})
        set(KELVO_WINDOWS_LIBRARIES $ENV{KELVO_WINDOWS_LIBRARIES})
    elseif(DEFINED ENV{XDG_CACHE_HOME})
        set(KELVO_WINDOWS_LIBRARIES $ENV{XDG_CACHE_HOME}/kelvo-windows)
    else()
        set(KELVO_WINDOWS_LIBRARIES $ENV{HOME}/.cache/kelvo-windows)
    endif()
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KELVO_WINDOWS_LIBRARIES)

set(CMAKE_FIND_ROOT_PATH ${KELVO_WINDOWS_LIBRARIES}/qt ${KELVO_WINDOWS_LIBRARIES}/sqlite /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The tools of the toolkit run here, so they are those of this system, in the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
