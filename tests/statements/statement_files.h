// Statement files and what loading them brings.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "tivex.h"

struct parser_deleter {
  void operator()(tivex_stmt_parser_t* parser) const { tivex_stmt_parser_free(parser); }
};
using parser_ptr = std::unique_ptr<tivex_stmt_parser_t, parser_deleter>;

inline parser_ptr new_parser() { return parser_ptr(tivex_stmt_parser_new()); }

inline int load(const parser_ptr& parser, const std::filesystem::path& path,
                int format = TIVEX_FORMAT_MT940) {
  return tivex_stmt_parser_load(parser.get(), format, path.string().c_str());
}

// Result and error text of a load, and what was read. An empty path stands for none.
std::string outcome_of(const std::filesystem::path& path, int format = TIVEX_FORMAT_MT940);

// A file that is there as long as the object lives.
struct temporary_file {
  const std::filesystem::path path;
  explicit temporary_file(const std::string& content);
  ~temporary_file() { std::filesystem::remove(path); }
};

// The descriptor that the next file opened would get: higher when one is left open.
int next_descriptor();

std::string content_of(const std::filesystem::path& path);

inline const std::filesystem::path example =
    std::filesystem::path(TIVEX_SOURCE) / "../examples/statement.sta";
