# What Debian packages are configured with: cmake -C packaging/debian/cache.cmake ...
set(CMAKE_INSTALL_PREFIX /usr CACHE PATH "")
set(CMAKE_BUILD_TYPE Release CACHE STRING "")
# The system's loader finds the library.
set(CMAKE_SKIP_INSTALL_RPATH ON CACHE BOOL "")
set(CMAKE_EXE_LINKER_FLAGS "-Wl,-z,now" CACHE STRING "")
set(TIVEX_DEBIAN_PACKAGES ON CACHE BOOL "")
