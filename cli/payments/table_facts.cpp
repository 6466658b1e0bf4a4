#include "payments/table_facts.h"

#include <string_view>

#include "files/table_form.h"
#include "terminal/diagnostics.h"
#include "terminal/labelled_line.h"

namespace tivex_program {
namespace {

using column_facts = table_facts::column_facts;

std::string_view name_of(decimal_sign sign) {
  return sign == decimal_sign::comma   ? "decimal comma"
         : sign == decimal_sign::point ? "decimal point"
                                       : "";
}

// What there is to tell of the columns, one behind the other; of some there is nothing.
template <typename told_function>
std::vector<std::string> told_of(const table_facts& facts, told_function told) {
  std::vector<std::string> all;
  for (const column_facts& column : facts.columns) {
    std::string text = told(column);
    if (!text.empty()) all.push_back(std::move(text));
  }
  return all;
}

std::string meaning(const column_facts& column) {
  if (column.key.empty() || column.name.empty()) return {};
  return column.name == column.key ? column.key : column.name + " = " + column.key;
}

std::string passed_over(const column_facts& column) {
  return column.key.empty() ? column.name : std::string();
}

std::string counted(std::uint64_t count, const std::string& name) {
  return count == 0 ? std::string() : std::to_string(count) + ' ' + name;
}

std::string changed(const column_facts& column) { return counted(column.changed, column.name); }
std::string filled(const column_facts& column) { return counted(column.filled, column.key); }

std::vector<json_object> objects_of(const std::vector<column_facts>& columns) {
  std::vector<json_object> objects;
  for (const column_facts& column : columns) {
    if (column.name.empty() && column.filled == 0) continue;
    json_object& object = objects.emplace_back();
    object.add_text_or_null("name", column.name);
    object.add_text_or_null("key", column.key);
    object.add_number("changed", column.changed);
    object.add_number("filled", column.filled);
  }
  return objects;
}

std::string joined(const std::vector<std::string>& parts) {
  std::string all;
  for (const std::string& part : parts) all.append(all.empty() ? "" : ", ").append(part);
  return all;
}

std::string line(std::string_view label, const std::string& value) {
  return value.empty() ? std::string() : printable_line(labelled_line(label, value));
}

std::string form_of(const table_facts& facts) {
  std::string form(name_of_separator(facts.separator));
  form.append(", ").append(facts.encoding);
  if (facts.sign != decimal_sign::unknown) form.append(", ").append(name_of(facts.sign));
  return form;
}

}  // namespace

std::string text_of(const table_facts& facts) {
  const std::string decided = facts.decided_amounts == 0
                                  ? std::string()
                                  : std::to_string(facts.decided_amounts) +
                                        (facts.decided_amounts == 1 ? " amount" : " amounts") +
                                        " that may be thousands or decimals, by the " +
                                        std::string(name_of(facts.sign)) + " of the others";
  return line("rows", std::to_string(facts.rows)) + line("table", form_of(facts)) +
         line("columns", joined(told_of(facts, meaning))) +
         line("passed over", joined(told_of(facts, passed_over))) +
         line("changed", joined(told_of(facts, changed))) +
         line("filled in", joined(told_of(facts, filled))) + line("decided", decided);
}

void add_to(json_object& object, const table_facts& facts) {
  object.add_number("rows", facts.rows);
  object.add_text("separator", name_of_separator(facts.separator));
  object.add_text("encoding", facts.encoding);
  const bool found = facts.sign != decimal_sign::unknown;
  object.add_text_or_null("decimal_sign",
                          found ? std::string(1, static_cast<char>(facts.sign)) : "");
  object.add_number("decided_amounts", facts.decided_amounts);
  object.add_objects("columns", objects_of(facts.columns));
}

}  // namespace tivex_program
