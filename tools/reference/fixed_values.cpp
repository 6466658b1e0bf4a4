#include "fixed_values.h"

#include <CLI/CLI.hpp>
#include <string>
#include <string_view>

namespace tivex_reference {

namespace {

using texts = std::vector<std::string>;

texts split(std::string_view text, std::string_view separator) {
  texts parts;
  for (std::size_t at = text.find(separator); at != std::string::npos; at = text.find(separator)) {
    parts.emplace_back(text.substr(0, at));
    text.remove_prefix(at + separator.size());
  }
  parts.emplace_back(text);
  return parts;
}

// CLI11 names the members of a set only where it refuses a value: "x not in {a,b,c}".
texts members(CLI::Option& option) {
  std::string refused = "\x1B";
  std::string reason;
  try {
    reason = (*option.get_validator(0))(refused);
  } catch (const CLI::OptionNotFound&) {
    return {};
  }
  constexpr std::string_view mark = " not in {";
  const std::size_t at = reason.find(mark);
  if (at == std::string::npos) return {};
  const std::size_t begin = at + mark.size();
  texts all;
  texts parts = split(std::string_view(reason).substr(begin, reason.size() - begin - 1), ",");
  for (auto part = parts.begin(); part != parts.end(); ++part) {
    // A member that is a comma leaves two empty parts.
    const bool comma = part->empty() && part + 1 != parts.end() && (part + 1)->empty();
    all.push_back(comma ? "," : *part);
    if (comma) ++part;
  }
  return all;
}

texts listed(const std::string& description) {
  const std::size_t colon = description.find(": ");
  texts all;
  for (const std::string& part :
       split(colon == std::string::npos ? description : description.substr(colon + 2), ", ")) {
    for (std::string word : split(part, " or ")) {
      constexpr std::string_view mark = " (default)";
      if (word.ends_with(mark)) word.erase(word.size() - mark.size());
      if (word.empty() || word.find_first_of(" ;:(") != std::string::npos) return {};
      all.push_back(word);
    }
  }
  return all.size() > 1 ? all : texts();
}

}  // namespace

std::vector<std::string> fixed_values(CLI::Option& option) {
  texts values = members(option);
  return values.empty() ? listed(option.get_description()) : values;
}

}  // namespace tivex_reference
