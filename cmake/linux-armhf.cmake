# Cross-compiling for Linux on armhf (32 bits) with Debian's g++-arm-linux-gnueabihf.
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(linux arm-linux-gnueabihf)
set(emulated arm)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
