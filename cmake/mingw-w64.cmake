# What the toolchains for Windows have in common.
set(CMAKE_C_COMPILER ${mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw}-windres)
# What scripts/windows-libraries prepares, but nothing of this machine's own /usr/include.
if(NOT TIVEX_WINDOWS_LIBRARIES)
  set(TIVEX_WINDOWS_LIBRARIES ${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries)
endif()
set(CMAKE_FIND_ROOT_PATH ${TIVEX_WINDOWS_LIBRARIES}/${mingw} /usr/${mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
