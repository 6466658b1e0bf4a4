# The Debian packages libtivex2, libtivex-dev and tivex, made by CPack of the components
# library, development and program.
set(debian ${CMAKE_CURRENT_LIST_DIR})
set(library_package libtivex${PROJECT_VERSION_MAJOR})
set(names_library ${library_package})
set(names_development libtivex-dev)
set(names_program tivex)

# --- Files that only Debian's packages have --------------------------------------------

compress(${debian}/changelog changelog)
compress(${PROJECT_SOURCE_DIR}/CHANGELOG.md upstream_changelog)
foreach(component library development program)
  set(place ${CMAKE_INSTALL_DATADIR}/doc/${names_${component}})
  install(FILES ${debian}/copyright DESTINATION ${place} COMPONENT ${component})
  install(FILES ${changelog} RENAME changelog.Debian.gz DESTINATION ${place} COMPONENT ${component})
  install(FILES ${upstream_changelog} RENAME changelog.gz DESTINATION ${place} COMPONENT ${component})
endforeach()

# The revision with which each symbol came, for packages that are linked with the library.
# The tilde counts builds for older systems of Debian in.
set(control ${PROJECT_BINARY_DIR}/packaging/control)
file(STRINGS packaging/released_symbols.txt symbols)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS packaging/released_symbols.txt)
set(soname libtivex.so.${PROJECT_VERSION_MAJOR})
set(node TIVEX_${PROJECT_VERSION_MAJOR})
list(GET symbols 0 first)
string(REGEX REPLACE ".* " " ${node}@${node} " node_line "${first}")
list(TRANSFORM symbols REPLACE "^([^ ]+) (.*)$" " \\1@${node} \\2~")
list(JOIN symbols "\n" symbols)
file(WRITE ${control}/symbols
  "${soname} ${library_package} #MINVER#\n* Build-Depends-Package: libtivex-dev\n${node_line}~\n${symbols}\n")
set(version ${PROJECT_VERSION}-${tivex_revision})
file(WRITE ${control}/shlibs
  "libtivex ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${version}~)\n")
file(WRITE ${control}/triggers "activate-noawait ldconfig\n")

# --- Packages --------------------------------------------------------------------------

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL library development program)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The tivex authors <tivex@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PROJECT_CONFIG_FILE ${debian}/when_packed.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${debian}/symbols_for_program.cmake)
set(CPACK_TIVEX_SYMBOLS ${control}/symbols)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${tivex_revision})
set(CPACK_DEBIAN_PACKAGE_SOURCE tivex)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})

set(about
"tivex writes payments as credit transfer (pain.001) and direct debit
(pain.008) documents, validates IBANs, BICs and German account numbers,
finds the bank behind a code and reads bank statements (CAMT, MT940).")

# CPack 3.25 has no variable for Multi-Arch, so the field follows the section.

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION "libs\nMulti-Arch: same")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SHLIBDEPS ON)
# The trigger does what CPack would write scripts for; named and absent, they stay away.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
  ${control}/shlibs ${control}/symbols ${control}/triggers ${control}/postinst ${control}/postrm)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION
  "library for payments in the Single Euro Payments Area\n${about}\n.
This package holds the shared library, which needs the C library only.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtivex-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel\nMulti-Arch: same")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} (= ${version})")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
  "library for payments in the Single Euro Payments Area - development\n${about}\n.
This package holds the header, the static library, the files for
pkg-config and CMake, and examples.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME tivex)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION "utils\nMulti-Arch: foreign")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
  "payments in the Single Euro Payments Area on the command line\n${about}\n.
This package holds the program, its manual page and the documents.")

include(CPack)
