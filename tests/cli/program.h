// Runs the program as a user does.
#pragma once

#include <filesystem>
#include <string>

// A directory that is removed with all it holds.
class scratch_directory {
 public:
  scratch_directory();
  ~scratch_directory() { std::filesystem::remove_all(path_); }
  std::string operator/(const char* name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

struct program_result {
  int status;
  std::string output;
  std::string errors;
};

// Runs a shell line in a directory. In the line "tivex" stands for the program,
// "transfer" and "debit" for its commands with the options of the account, which
// read transactions from what follows, and $examples for the directory of these.
program_result run(const std::string& line, const std::string& input = {},
                   const scratch_directory& directory = {});

std::string replaced(std::string text, const std::string& part, const std::string& by);

// Returns the text with each @ replaced by a good IBAN.
std::string with_ibans(const std::string& text);

std::string read_file(const std::filesystem::path& path);
bool contains(const std::string& text, const std::string& part);
