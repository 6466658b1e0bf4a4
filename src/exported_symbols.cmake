# Turns the list of exported symbols into what the linker of the system takes: a version
# script, or a module-definition file for Windows.

set(list ${CMAKE_CURRENT_SOURCE_DIR}/exported_symbols.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list})
file(STRINGS ${list} symbols)

if(WIN32)
  list(JOIN symbols "\n  " exports)
  set(exports_file ${CMAKE_CURRENT_BINARY_DIR}/tivex.def)
  file(CONFIGURE OUTPUT ${exports_file} CONTENT "LIBRARY tivex.dll\nEXPORTS\n  ${exports}\n")
else()
  list(TRANSFORM symbols REPLACE " DATA$" "")
  list(JOIN symbols ";\n    " exports)
  set(exports_file ${CMAKE_CURRENT_BINARY_DIR}/tivex.map)
  file(CONFIGURE OUTPUT ${exports_file} CONTENT
    "TIVEX_${PROJECT_VERSION_MAJOR} {\n  global:\n    ${exports};\n  local:\n    *;\n};\n")
endif()
