# What is installed: of the libraries and the program those that were built. Everything is
# found relative to where it stands, so the prefix may be chosen, or changed, afterwards.
include(CMakePackageConfigHelpers)
set(cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tivex)

# --- Library ---------------------------------------------------------------------------

install(TARGETS tivex EXPORT tivex-targets OPTIONAL
  RUNTIME COMPONENT library
  LIBRARY COMPONENT library NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(TARGETS tivex_static EXPORT tivex-static-targets OPTIONAL
  ARCHIVE COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES include/tivex.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

# An absolute folder takes the place of the prefix in front of it.
cmake_path(APPEND pc_libdir "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
cmake_path(APPEND pc_includedir "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR})
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(pc_prefix ${CMAKE_INSTALL_PREFIX})
  set(program_to_library ${CMAKE_INSTALL_LIBDIR})
else()
  file(RELATIVE_PATH to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /x)
  cmake_path(GET to_prefix PARENT_PATH to_prefix)
  set(pc_prefix "\${pcfiledir}/${to_prefix}")
  file(RELATIVE_PATH to_library /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set(program_to_library "\$ORIGIN/${to_library}")
endif()
if(TIVEX_DEBIAN_PACKAGES)
  set(pc_prefix ${CMAKE_INSTALL_PREFIX}) # so that folders of the system are not named
endif()
if(NOT WIN32)
  set(pc_private_libs -lm)
endif()
configure_file(src/tivex.pc.in tivex.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tivex.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

foreach(part tivex-targets tivex-static-targets)
  install(EXPORT ${part} NAMESPACE tivex:: DESTINATION ${cmake_dir} COMPONENT development)
endforeach()
configure_file(cmake/tivex-config.cmake.in tivex-config.cmake @ONLY)
write_basic_package_version_file(tivex-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/tivex-config.cmake
  ${PROJECT_BINARY_DIR}/tivex-config-version.cmake
  DESTINATION ${cmake_dir} COMPONENT development)

# --- Program ---------------------------------------------------------------------------

if(TARGET tivex-cli)
  set_target_properties(tivex-cli PROPERTIES INSTALL_RPATH "${program_to_library}")
  install(TARGETS tivex-cli OPTIONAL RUNTIME COMPONENT program)
endif()
if(TARGET tivex-edition)
  install(TARGETS tivex-edition OPTIONAL RUNTIME COMPONENT edition)
endif()

# --- Manual pages and completions ------------------------------------------------------

# As Debian's policy asks, in the same bytes at any time.
function(compress file result)
  cmake_path(GET file FILENAME name)
  set(compressed ${PROJECT_BINARY_DIR}/packaging/${name}.gz)
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging)
  execute_process(COMMAND gzip -9nc ${file} OUTPUT_FILE ${compressed} COMMAND_ERROR_IS_FATAL ANY)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  set(${result} ${compressed} PARENT_SCOPE)
endfunction()

file(GLOB man_pages CONFIGURE_DEPENDS packaging/man/*.[1-9])
foreach(page ${man_pages})
  cmake_path(GET page EXTENSION LAST_ONLY section)
  string(SUBSTRING ${section} 1 1 section)
  set(component program)
  if(section EQUAL 3)
    set(component development)
  elseif(page MATCHES "/tivex-edition")
    set(component edition)
  endif()
  # The generator of editions serves those only who have the sources.
  if(component STREQUAL edition AND NOT TARGET tivex-edition)
    continue()
  endif()
  if(TIVEX_DEBIAN_PACKAGES)
    compress(${page} page)
  endif()
  install(FILES ${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man${section} COMPONENT ${component})
endforeach()

set(zsh_folder zsh/site-functions)
if(TIVEX_DEBIAN_PACKAGES)
  set(zsh_folder zsh/vendor-completions)
endif()
function(install_completion file folder name)
  if(EXISTS ${PROJECT_SOURCE_DIR}/packaging/completions/${file})
    install(FILES packaging/completions/${file} RENAME ${name}
      DESTINATION ${CMAKE_INSTALL_DATADIR}/${folder} COMPONENT program)
  endif()
endfunction()
install_completion(tivex.bash bash-completion/completions tivex)
install_completion(_tivex ${zsh_folder} _tivex)
install_completion(tivex.fish fish/vendor_completions.d tivex.fish)

# --- Documents and examples ------------------------------------------------------------

install(FILES README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT program)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT program)
install(FILES LICENSE CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licence)
install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT program
  PATTERN hosts EXCLUDE PATTERN *.c EXCLUDE)
install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development
  FILES_MATCHING REGEX "/hosts/" REGEX "\\.c$")
