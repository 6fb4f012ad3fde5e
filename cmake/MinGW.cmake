# Toolchain file: Windows x64 by MinGW-w64, on a machine that runs something else.

get_filename_component(root ${CMAKE_CURRENT_LIST_DIR} DIRECTORY)
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# The thread variant whose standard library has std::mutex and std::thread.
set(prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)

# Programs come from this machine, everything else is for Windows; header-only libraries are in both.
set(CMAKE_FIND_ROOT_PATH ${root}/build/windows-libraries/prefix /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(ENV{PKG_CONFIG_LIBDIR} ${root}/build/windows-libraries/prefix/lib/pkgconfig)
set(PKG_CONFIG_ARGN --static CACHE STRING "Arguments of pkg-config")

# expat requires a macro where it is not a DLL.
set(CMAKE_CXX_FLAGS_INIT -DXML_STATIC)

# The compiler's runtime is linked into each program and library, so that they need no other files.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -static)

set(CMAKE_CROSSCOMPILING_EMULATOR ${root}/scripts/wine)
