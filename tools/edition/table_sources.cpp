#include "table_sources.h"

#include <algorithm>
#include <set>

#include "directory/record_layout.h"
#include "edition_checks.h"
#include "switch_time.h"
#include "utf8.h"

namespace tivex_edition {

namespace {

// Text stands as it is, every other byte in octal, of which three digits never
// run into a digit that follows.
std::string literal(std::string_view bytes) {
  std::string text = "\"";
  while (!bytes.empty()) {
    const auto byte = static_cast<unsigned char>(bytes[0]);
    const std::size_t length = utf8_length(bytes);
    if (length == 0 || byte < 0x20 || byte == 0x7F) {
      const char octal[] = {'\\', static_cast<char>('0' + (byte >> 6)),
                            static_cast<char>('0' + (byte >> 3 & 7)),
                            static_cast<char>('0' + (byte & 7))};
      text.append(octal, sizeof octal);
    } else {
      if (byte == '"' || byte == '\\') text += '\\';
      text += bytes.substr(0, length);
    }
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return text + '"';
}

// Appends numbers with commas, several to a line.
class number_lines {
 public:
  explicit number_lines(std::string& text) : text_(text) {}
  void add(const std::string& number) {
    constexpr std::size_t longest_line = 98;
    if (line_length_ + number.size() + 1 > longest_line) {
      text_ += '\n';
      line_length_ = 0;
    }
    text_ += number + ',';
    line_length_ += number.size() + 1;
  }

 private:
  std::string& text_;
  std::size_t line_length_ = 0;
};

std::string second_version_source(const std::vector<directory_record>& records) {
  constexpr std::size_t width = 64;
  std::string text = "\nconst std::uint64_t directory_second_versions[] = {\n";
  number_lines words(text);
  for (std::size_t start = 0; start < records.size(); start += width) {
    std::uint64_t bits = 0;
    const std::size_t end = std::min(start + width, records.size());
    for (std::size_t index = start; index < end; ++index) {
      if (records[index].has_second_version) bits |= std::uint64_t{1} << (index - start);
    }
    words.add(std::to_string(bits) + "U");
  }
  return text + "};\n";
}

std::string records_source(const std::vector<directory_record>& records) {
  std::string bytes;
  std::string pointers;
  number_lines pointer_lines(pointers);
  std::size_t offset = 0;
  for (const directory_record& record : records) {
    std::string padded = record.bytes;
    padded.resize((padded.size() + tivex::record_alignment - 1) / tivex::record_alignment *
                  tivex::record_alignment);
    bytes += literal(padded) + '\n';
    pointer_lines.add("r+" + std::to_string(offset));
    offset += padded.size();
  }
  return std::string(generated_head) +
         "#include \"directory/directory_data.h\"\n\nnamespace tivex {\n\n"
         "namespace {\nalignas(" +
         std::to_string(tivex::record_alignment) + ") constexpr char r[] =\n" + bytes +
         ";\n}  // namespace\n\nconst char* const directory_records[] = {\n" + pointers + "};\n" +
         second_version_source(records) + "\n}  // namespace tivex\n";
}

std::string hash_source(const constructed_hash& hash) {
  std::string text = std::string(generated_head) +
                     "#include \"directory/directory_data.h\"\n\nnamespace tivex {\n";
  for (std::size_t table = 0; table < 3; ++table) {
    text += "\nconst hash_weights directory_hash_t" + std::to_string(table + 1) + " = {\n";
    for (const auto& position : hash.weights[table]) {
      text += "{";
      number_lines weights(text);
      for (const std::uint32_t weight : position) weights.add(std::to_string(weight));
      text += "},\n";
    }
    text += "};\n";
  }
  text += "\nconst std::int32_t directory_hash_g[] = {\n";
  number_lines values(text);
  for (const std::int32_t value : hash.vertex_values) values.add(std::to_string(value));
  return text + "};\n\n}  // namespace tivex\n";
}

std::string date_of_change(const edition_table<german_row>& german) {
  std::string date = german.valid_from;
  for (const german_row& row : german.rows) date = std::max(date, row.valid_from);
  return date;
}

std::string constants_source(const edition& facts, const constructed_hash& hash) {
  const std::string date = date_of_change(facts.german);
  return std::string(generated_head) +
         "#pragma once\n\n#include <cstdint>\n\nnamespace tivex {\n\n"
         "inline constexpr std::int32_t directory_record_count = " +
         std::to_string(hash.key_count) +
         ";\ninline constexpr std::uint32_t directory_vertex_count = " +
         std::to_string(hash.vertex_values.size()) + ";\n\n// " + date +
         " 00:00 in Germany, in seconds since 1970-01-01 UTC: second versions of\n"
         "// German records hold from then on.\n"
         "inline constexpr std::int64_t directory_switch_time = " +
         std::to_string(start_of_day_in_germany(date)) + ";\n\n}  // namespace tivex\n";
}

std::string edition_source(const edition& facts) {
  std::set<std::string> german_codes;
  for (const german_row& row : facts.german.rows) german_codes.insert(row.bank_code);
  return std::string(generated_head) +
         "#include \"tivex.h\"\n\nconst char* tivex_edition_str = \"" +
         date_of_change(facts.german) + " DE " + std::to_string(german_codes.size()) + " AT " +
         std::to_string(facts.austrian.rows.size()) + " CH " +
         std::to_string(facts.swiss.rows.size()) + " BIC " +
         std::to_string(facts.bics.rows.size()) + "\";\n";
}

}  // namespace

std::vector<source_file> generate_tables(const edition& facts, fault_list& faults) {
  check_edition(facts, faults);
  const std::vector<directory_record> records = lay_out_records(facts, faults);
  if (!faults.empty()) return {};
  std::vector<std::string> keys;
  keys.reserve(records.size());
  for (const directory_record& record : records) keys.push_back(record.key);
  const std::unique_ptr<constructed_hash> hash = construct_hash(keys);
  if (hash == nullptr) {
    faults.add("data/edition", "no perfect hash was found for its keys");
    return {};
  }
  return {{"records.cpp", records_source(records)},
          {"hash_tables.cpp", hash_source(*hash)},
          {"constants.h", constants_source(facts, *hash)},
          {"edition.cpp", edition_source(facts)}};
}

}  // namespace tivex_edition
