#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tivex_program {

// Which characters the selected rulebook admits in the values of a key. The library knows,
// and is asked once for each.
class admitted_characters {
 public:
  admitted_characters(int message_type, bool strict) : type_(message_type), strict_(strict) {}

  bool admits(std::string_view key, std::string_view character);

  // Whether values of the key are texts, which may be written with other characters. What
  // names an account, a bank, an amount, a date or a code is not.
  static bool is_text(std::string_view key);

 private:
  enum class answer : unsigned char { unknown, yes, no };
  struct known_of_key {
    answer ascii[128] = {};
    std::unordered_map<std::string, bool> others;
  };

  bool ask(std::string_view key, std::string_view character) const;
  bool takes(std::string_view key, const std::string& value) const;
  bool writes(std::string_view key, const std::string& value) const;

  int type_;
  bool strict_;
  known_of_key* latest_ = nullptr;
  std::string_view latest_key_;
  std::map<std::string, known_of_key, std::less<>> known_;
};

// The key of the message's own name.
inline constexpr std::string_view own_name_key = "--name";

}  // namespace tivex_program
