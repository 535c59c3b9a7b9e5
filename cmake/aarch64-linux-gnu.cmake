# Cross-build for 64-bit ARM against the root that tools/arm64-sysroot makes:
#   cmake -DCMAKE_TOOLCHAIN_FILE=cmake/aarch64-linux-gnu.cmake -DQTARNKIT_SYSROOT=PATH
# What was built runs under tools/with-arm64.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
# So that the root's lib/aarch64-linux-gnu is searched.
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES QTARNKIT_SYSROOT)

set(QTARNKIT_SYSROOT "" CACHE PATH "Unpacked Debian root for arm64")
if(NOT IS_DIRECTORY "${QTARNKIT_SYSROOT}/usr/lib/aarch64-linux-gnu")
    message(FATAL_ERROR "QTARNKIT_SYSROOT is not an arm64 root: '${QTARNKIT_SYSROOT}'")
endif()
set(CMAKE_SYSROOT "${QTARNKIT_SYSROOT}")
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_FIND_ROOT_PATH "${QTARNKIT_SYSROOT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
