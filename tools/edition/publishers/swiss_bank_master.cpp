#include "publishers/swiss_bank_master.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>

#include "publishers/field_texts.h"
#include "publishers/row_check.h"

namespace tivex_edition {

namespace {

using nlohmann::json;

enum field : std::size_t { bank_code, name, bic, postcode, city, country };

constexpr column_form columns[] = {
    {"iid", is_bank_code5, "a number of 5 digits at most"},
    {"bankOrInstitutionName", is_record_text, text_wanted},
    {"bic", is_bic_or_empty, bic_wanted},
    {"postCode", is_record_text, text_wanted},
    {"townName", is_record_text, text_wanted},
    {"country", is_country_or_empty, "two capital letters"},
};
constexpr std::size_t required_columns = 2;  // the first ones

constexpr const char* wanted_type = "BankMaster";
constexpr const char* home_country = "CH";

// Where the parser stopped, as line and column.
void fault_at(const published_file& file, std::size_t byte) {
  const std::string_view read = std::string_view(file.text()).substr(0, byte > 0 ? byte - 1 : 0);
  const auto lines_read = std::count(read.begin(), read.end(), '\n');
  const std::size_t column = read.size() - (read.rfind('\n') + 1) + 1;
  file.fault(static_cast<int>(lines_read) + 1,
             "malformed JSON at column " + std::to_string(column));
}

std::optional<json> parse(const published_file& file) {
  try {
    return json::parse(file.text());
  } catch (const json::parse_error& error) {
    fault_at(file, error.byte);
  } catch (const json::exception&) {
    file.fault("malformed JSON: a number is too large");
  }
  return std::nullopt;
}

// A member as text, empty when it is missing or null; nothing when it is of
// another type.
std::optional<std::string> text_of(const json& object, const char* member) {
  const auto found = object.find(member);
  if (found == object.end() || found->is_null()) return "";
  if (found->is_number_unsigned()) return std::to_string(found->get<std::uint64_t>());
  if (!found->is_string()) return std::nullopt;
  return std::string(trimmed(found->get_ref<const std::string&>()));
}

// The entry's fields; nothing, and faults, when one cannot be had.
std::optional<text_row> row_from(const json& entry, int number, const row_check& check) {
  text_row row = {number, {}};
  for (std::size_t index = 0; index < std::size(columns); ++index) {
    const std::optional<std::string> text = text_of(entry, columns[index].name);
    if (!text) {
      check.fault(number, std::string(columns[index].name) + " is neither text nor a number");
    } else if (index < required_columns && text->empty()) {
      check.fault(number, std::string(columns[index].name) + " is missing");
    } else {
      row.fields.push_back(*text);
    }
  }
  if (row.fields.size() != std::size(columns)) return std::nullopt;
  row.fields[bank_code] = full_bank_code(row.fields[bank_code]);
  row.fields[bic] = full_bic(row.fields[bic]);
  if (row.fields[country] == home_country) row.fields[country].clear();
  return row;
}

void read_entries(const published_file& file, const json& entries,
                  publication<bank_row>& published) {
  row_check check(file, columns, row_place::entry);
  int number = 0;
  for (const json& entry : entries) {
    ++number;
    if (!entry.is_object() || !entry.contains("entryType")) {
      check.fault(number, "entryType is missing");
      continue;
    }
    if (entry["entryType"] != wanted_type) {
      ++published.skipped;
      continue;
    }
    const std::optional<text_row> row = row_from(entry, number, check);
    if (!row || !check.passes(*row)) continue;
    const std::vector<std::string>& fields = row->fields;
    published.rows.push_back({0, fields[bank_code], fields[bic], fields[name], fields[postcode],
                              fields[city], fields[country]});
  }
}

}  // namespace

publication<bank_row> read_swiss_bank_master(const published_file& file) {
  publication<bank_row> published;
  const std::optional<json> document = parse(file);
  if (!document) return published;
  if (document->is_array()) {
    read_entries(file, *document, published);
    return published;
  }
  if (!document->is_object() || !document->contains("entries") ||
      !(*document)["entries"].is_array()) {
    file.fault("holds no array of entries");
    return published;
  }
  published.valid_from = date_in(text_of(*document, "validOn").value_or(""));
  if (published.valid_from.empty()) file.fault("validOn is missing or holds no date");
  read_entries(file, (*document)["entries"], published);
  return published;
}

}  // namespace tivex_edition
