#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tivex_program {

// An object of JSON, whose members stay in the order in which they are added. Texts may
// hold any bytes: one that is no UTF-8 is made printable.
class json_object {
 public:
  json_object();
  ~json_object();
  json_object(json_object&& other) noexcept;
  json_object& operator=(json_object&& other) noexcept;

  void add_text(std::string_view name, std::string_view text);
  // Null for an empty text.
  void add_text_or_null(std::string_view name, std::string_view text);
  void add_texts(std::string_view name, const std::vector<std::string>& texts);
  void add_objects(std::string_view name, const std::vector<json_object>& objects);
  void add_number(std::string_view name, std::uint64_t number);
  void add_flag(std::string_view name, bool flag);
  void add_null(std::string_view name);

  // On one line, and over several lines for a reader.
  std::string line() const;
  std::string lines() const;

 private:
  // The library that writes JSON takes long to compile: it is seen in one file.
  struct members;
  std::unique_ptr<members> members_;
};

}  // namespace tivex_program
