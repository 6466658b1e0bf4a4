#include "statements/statement_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "platform/platform.h"
#include "statements/statement_dump.h"

namespace fs = std::filesystem;

std::string outcome_of(const fs::path& path, int format) {
  const parser_ptr parser = new_parser();
  const int result =
      tivex_stmt_parser_load(parser.get(), format, path.empty() ? nullptr : path.string().c_str());
  const std::string error = tivex_stmt_parser_getError(parser.get());
  const unsigned pending = tivex_stmt_parser_getPending(parser.get());
  return "load=" + std::to_string(result) + '\n' + (error.empty() ? "" : "error=" + error + '\n') +
         (pending == 0 ? "" : "pending=" + std::to_string(pending) + '\n') +
         dump_of(tivex_stmt_parser_getStatement(parser.get()));
}

temporary_file::temporary_file(const std::string& content)
    : path(fs::temp_directory_path() /
           ("tivex_statement_" + std::to_string(tivex::platform::process_id()))) {
  std::ofstream(path, std::ios::binary) << content;
}

int next_descriptor() {
  const int descriptor = ::open(example.string().c_str(), O_RDONLY);
  ::close(descriptor);
  return descriptor;
}

std::string content_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}
