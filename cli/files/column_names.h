// What the columns of tables are called by people.
#pragma once

#include <span>
#include <string_view>

namespace tivex_program {

struct column_alias {
  std::string_view name;
  std::string_view key;
};

// German and English names of the keys; case, accents, blanks and signs aside.
std::span<const column_alias> column_aliases();

// The key of a column, itself or by an alias; empty for an unknown name.
std::string_view key_of_column(std::string_view name, std::span<const std::string_view> keys);

}  // namespace tivex_program
