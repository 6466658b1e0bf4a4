// The facts of an edition as rows, as the files of data/edition state them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tivex_edition {

// A bank code of Austria, Switzerland or Liechtenstein.
struct bank_row {
  int line = 0;           // of the file; 0 for a row that was made in memory
  std::string bank_code;  // 5 digits, 8 of a German one
  std::string bic;        // 11 characters or empty
  std::string name;
  std::string postcode;
  std::string city;
  std::string country;  // empty for Switzerland itself
};

// A German bank code, or what it changes to at a later date.
struct german_row : bank_row {
  std::string valid_from;       // empty: the first version; otherwise yyyy-mm-dd
  bool deleted = false;         // marked for deletion
  std::string method;           // check-digit method, two hexadecimal digits
  std::uint16_t iban_rule = 0;  // rule * 100 + version
  std::string successor;        // bank code, or empty
};

struct bic_row {
  int line = 0;
  std::string bic;
  std::uint8_t flags = 0;
  std::string name;
};

// One file: what its header says, and its rows.
template <typename row_type>
struct edition_table {
  std::string title;
  std::string source;
  std::string valid_from;  // yyyy, yyyy-mm or yyyy-mm-dd
  std::vector<row_type> rows;
};

struct edition {
  edition_table<german_row> german;
  edition_table<bank_row> austrian;
  edition_table<bank_row> swiss;
  edition_table<bic_row> bics;
};

// The files' names within the folder of the edition.
inline constexpr const char* german_file_name = "german_banks.tsv";
inline constexpr const char* austrian_file_name = "austrian_banks.tsv";
inline constexpr const char* swiss_file_name = "swiss_banks.tsv";
inline constexpr const char* bics_file_name = "bics.tsv";

}  // namespace tivex_edition
