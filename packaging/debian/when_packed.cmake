# The moment that packages bear is that of the changelog unless one is given.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(COMMAND dpkg-parsechangelog --show-field Timestamp
    --file ${CMAKE_CURRENT_LIST_DIR}/changelog
    OUTPUT_VARIABLE moment OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(ENV{SOURCE_DATE_EPOCH} ${moment})
endif()
