// Runs the program as a user does.
#pragma once

#include <filesystem>
#include <string>

struct program_result {
  int status;
  std::string output;
  std::string errors;
};

// Runs a shell line in which "tivex" stands for the program.
program_result run(const std::string& line, const std::string& input = {});

// The start of a line that reads transactions from what follows it.
inline const std::string transfer =
    "tivex credit-transfer --name 'Beispiel GmbH' --iban DE89370400440532013000 --date 2026-11-27 ";

inline const std::string debit =
    "tivex direct-debit --name 'Beispiel GmbH' --iban DE89370400440532013000 --bic COBADEFFXXX "
    "--creditor-id DE98ZZZ09999999999 --date 2026-12-01 ";

// Returns the text with each @ replaced by a good IBAN.
std::string with_ibans(std::string text);

std::string read_file(const std::filesystem::path& path);
bool contains(const std::string& text, const std::string& part);

// A directory that is removed with all it holds.
class scratch_directory {
 public:
  scratch_directory();
  ~scratch_directory() { std::filesystem::remove_all(path_); }
  std::string operator/(const char* name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};
