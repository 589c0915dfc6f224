# Cross-compiles for 64-bit Windows with the Debian mingw-w64 toolchain (posix threads model).
# Test programs run under wine through CMAKE_CROSSCOMPILING_EMULATOR.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_kel_mingw_prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_kel_mingw_prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_kel_mingw_prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${_kel_mingw_prefix}-windres)
set(CMAKE_NM ${_kel_mingw_prefix}-nm CACHE FILEPATH "")
set(CMAKE_OBJDUMP ${_kel_mingw_prefix}-objdump CACHE FILEPATH "")

# Look for libraries, headers and CMake packages only in the mingw sysroot, never in the
# host's /usr; host programs (python3, wine) are still found on PATH.
set(CMAKE_FIND_ROOT_PATH /usr/${_kel_mingw_prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# -static links libgcc, libstdc++ and winpthread into every DLL and executable. Without it
# the programs import libwinpthread-1.dll, which wine cannot find. The only imports left are
# KERNEL32.dll and msvcrt.dll, so all modules share one C runtime heap.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static")

find_program(KEL_WINE NAMES wine wine-stable wine64 PATHS /usr/lib/wine)
if(KEL_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${KEL_WINE})
endif()
