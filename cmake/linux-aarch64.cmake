# Cross-compiling for Linux on arm64 with Debian's g++-aarch64-linux-gnu.
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(linux aarch64-linux-gnu)
set(emulated aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
