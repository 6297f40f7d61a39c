# For 64-bit Windows, with the compilers that have POSIX threads and the libraries of tools/windows/toolchain.sh.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# The compiler takes the stack for aligned to 32 bytes, which Windows does not promise.
set(CMAKE_C_FLAGS_INIT "-Wa,-muse-unaligned-vector-move")
set(CMAKE_CXX_FLAGS_INIT "-Wa,-muse-unaligned-vector-move")

# Kept for the projects that CMake itself makes to try things.
if(NOT LUMIDEX_WINDOWS_TOOLCHAIN)
  set(LUMIDEX_WINDOWS_TOOLCHAIN "$ENV{LUMIDEX_WINDOWS_TOOLCHAIN}")
endif()
if(NOT LUMIDEX_WINDOWS_TOOLCHAIN)
  message(FATAL_ERROR "LUMIDEX_WINDOWS_TOOLCHAIN must name the folder that tools/windows/toolchain.sh --path prints")
endif()
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LUMIDEX_WINDOWS_TOOLCHAIN)

set(CMAKE_FIND_ROOT_PATH "${LUMIDEX_WINDOWS_TOOLCHAIN}/usr" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
