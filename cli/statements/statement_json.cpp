#include "statements/statement_json.h"

#include <nlohmann/json.hpp>
#include <string>

#include "statements/statement_fields.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

using nlohmann::ordered_json;

// Makes a value of JSON of what a field holds.
struct json_maker {
  text_encoding encoding;

  ordered_json operator()(std::monostate) const { return nullptr; }
  ordered_json operator()(bool flag) const { return flag; }
  ordered_json operator()(std::int64_t number) const { return number; }
  ordered_json operator()(const statement_date& date) const { return to_text(date); }
  ordered_json operator()(std::string_view text) const { return to_utf8(text, encoding); }
  // The number nearest to the cents is written with two decimals at most.
  ordered_json operator()(double amount) const {
    return static_cast<double>(cents_of(amount)) / 100;
  }
};

template <typename record>
void add_fields(ordered_json& object, std::span<const record_field<record>> fields,
                const record& of, text_encoding encoding) {
  for (const record_field<record>& field : fields) {
    object[field.name] = std::visit(json_maker{encoding}, field.value(of));
  }
}

}  // namespace

void begin_statement_json(const table_style&) { print_to_standard_output("["); }

void print_statement_json(const statement_view& view, bool first) {
  ordered_json head;
  head["file"] = to_utf8(view.file, text_encoding::utf8);
  add_fields(head, statement_fields, view.statement, view.encoding);
  head["balanced"] = view.balance_fault.empty();
  std::string text = head.dump();
  // The entries follow within the object, each on its line.
  text.pop_back();
  print_to_standard_output((first ? "\n" : ",\n") + text + ",\"entries\":[");
  bool first_entry = true;
  for_each_entry(view, [&](const tivex_stmt_tx_t& entry) {
    ordered_json object;
    add_fields(object, entry_fields, entry, view.encoding);
    print_to_standard_output((first_entry ? "\n  " : ",\n  ") + object.dump());
    first_entry = false;
  });
  print_to_standard_output("]}");
}

void end_statement_json() { print_to_standard_output("\n]\n"); }

}  // namespace tivex_program
