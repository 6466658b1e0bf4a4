#include "terminal/json_object.h"

#include <nlohmann/json.hpp>

#include "files/text_encoding.h"
#include "terminal/diagnostics.h"

namespace tivex_program {

struct json_object::members {
  nlohmann::ordered_json all = nlohmann::ordered_json::object();
};

json_object::json_object() : members_(std::make_unique<members>()) {}
json_object::~json_object() = default;
json_object::json_object(json_object&& other) noexcept = default;
json_object& json_object::operator=(json_object&& other) noexcept = default;

void json_object::add_text(std::string_view name, std::string_view text) {
  members_->all[std::string(name)] = is_utf8(text) ? std::string(text) : printable(text);
}

void json_object::add_text_or_null(std::string_view name, std::string_view text) {
  if (text.empty()) return add_null(name);
  add_text(name, text);
}

void json_object::add_texts(std::string_view name, const std::vector<std::string>& texts) {
  members_->all[std::string(name)] = texts;
}

void json_object::add_objects(std::string_view name, const std::vector<json_object>& objects) {
  auto array = nlohmann::ordered_json::array();
  for (const json_object& each : objects) array.push_back(each.members_->all);
  members_->all[std::string(name)] = std::move(array);
}

void json_object::add_number(std::string_view name, std::uint64_t number) {
  members_->all[std::string(name)] = number;
}

void json_object::add_flag(std::string_view name, bool flag) {
  members_->all[std::string(name)] = flag;
}

void json_object::add_null(std::string_view name) { members_->all[std::string(name)] = nullptr; }

std::string json_object::line() const { return members_->all.dump(); }

std::string json_object::lines() const { return members_->all.dump(2); }

}  // namespace tivex_program
