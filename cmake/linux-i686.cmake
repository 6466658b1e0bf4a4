# Cross-compiling for Linux on i386 (32 bits) with Debian's g++-i686-linux-gnu.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(linux i686-linux-gnu)
set(emulated i386)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
