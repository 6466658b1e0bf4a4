# Cross-compiling for Linux on s390x (big endian) with Debian's g++-s390x-linux-gnu.
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(linux s390x-linux-gnu)
set(emulated s390x)
include(${CMAKE_CURRENT_LIST_DIR}/linux.cmake)
