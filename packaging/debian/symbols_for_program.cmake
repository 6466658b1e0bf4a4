# dpkg-shlibdeps looks here for the symbols of packages that are made together; CPack
# removes the folder again.
file(COPY ${CPACK_TIVEX_SYMBOLS}
  DESTINATION ${CPACK_TEMPORARY_DIRECTORY}/program/debian/libtivex/DEBIAN)
