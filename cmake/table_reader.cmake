# Builds what the program reads tables with into a target of its own, for tests and fuzzers.
function(tivex_add_table_reader target)
  foreach(part files/amount_text files/column_names files/csv_reader files/date_text
          files/folded_name files/grouped_code files/input_file files/table_form files/table_text
          files/text_encoding files/utf8 payments/amount_column platform/exhausted_memory
          platform/posix_descriptor platform/posix_process)
    target_sources(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cli/${part}.cpp)
  endforeach()
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cli)
endfunction()
