# What the toolchains for Linux on other processors have in common. What they build runs
# under Debian's qemu-user.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${linux}-gcc)
set(CMAKE_CXX_COMPILER ${linux}-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${emulated} -L /usr/${linux})
set(CMAKE_FIND_ROOT_PATH /usr/${linux})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
