// Statement files of a size, which the benchmarks read.
#pragma once

#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

inline std::string repeated(const std::string& part, std::size_t size) {
  std::string text;
  text.reserve(size + part.size());
  while (text.size() < size) text += part;
  return text;
}

// Removed at the end of its life.
struct statement_file {
  std::string path;
  explicit statement_file(const std::string& text) {
    char name[] = "/tmp/tivex_bench_XXXXXX";
    const int file = mkstemp(name);
    path = name;
    std::ofstream(path, std::ios::binary) << text;
    close(file);
  }
  statement_file(const statement_file&) = delete;
  statement_file& operator=(const statement_file&) = delete;
  ~statement_file() { std::remove(path.c_str()); }
};
