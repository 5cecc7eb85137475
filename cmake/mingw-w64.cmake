# Cross-compiling for 64-bit Windows with Debian's mingw-w64.
#   cmake --preset windows-x64
# TM_WINDOWS_DEPS is the folder in which tools/cross-deps.sh keeps the libraries it built for Windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(tm_prefix x86_64-w64-mingw32)
# The posix flavour: std::thread and std::mutex exist only there.
set(CMAKE_C_COMPILER ${tm_prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tm_prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${tm_prefix}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${tm_prefix} $ENV{TM_WINDOWS_DEPS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The static libcrypto: find_package(OpenSSL) then links, behind it, the system libraries that it needs.
set(OPENSSL_USE_STATIC_LIBS TRUE)
