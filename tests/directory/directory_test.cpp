// The directory: every fact of data/edition is found again, nothing else is.

#include <gtest/gtest.h>

#include <random>

#include "directory/directory_data.h"
#include "directory/directory_hash.h"
#include "directory/find_bank.h"
#include "edition_files.h"
#include "support/runtime_control.h"
#include "support/table.h"
#include "tivex.h"

namespace {

using runtime_control::fixed_clock;
using tivex_edition::edition;

struct block_deleter {
  void operator()(tivex_bank_info_t* info) const { std::free(info); }
};
using info_block = std::unique_ptr<tivex_bank_info_t, block_deleter>;

const edition& facts() {
  static const edition read = [] {
    tivex_edition::fault_list faults;
    edition result = tivex_edition::read_edition(TIVEX_EDITION, faults);
    EXPECT_EQ(faults.all(), std::vector<std::string>());
    return result;
  }();
  return read;
}

// A block's texts and flags as one line; (null) for a text that is not there.
std::string line_of(const info_block& info) {
  std::string line;
  for (const char* const text :
       {info->bic, info->name, info->postcode, info->city, info->country}) {
    line += std::string(text == nullptr ? "(null)" : text) + '|';
  }
  return line + std::to_string(info->flags);
}

// The result and what was found of one of the exported lookups.
template <class lookup>
std::string found(const lookup& look_up) {
  tivex_bank_info_t* slot = nullptr;
  const int result = look_up(&slot);
  const info_block info(slot);
  EXPECT_EQ(look_up(nullptr), result) << "without a slot";
  EXPECT_EQ(info != nullptr, result == 1);
  return std::to_string(result) + (info ? ' ' + line_of(info) : "");
}

std::string bank(const char* country, const char* code) {
  return found([&](tivex_bank_info_t** slot) { return tivex_bankid_check(country, code, slot); });
}

std::string bic(const char* text) {
  return found([&](tivex_bank_info_t** slot) { return tivex_bic_getBank(text, slot); });
}

std::string bank_of_iban(const char* iban) {
  return found([&](tivex_bank_info_t** slot) { return tivex_iban_getBank(iban, slot); });
}

// The result and the successor.
std::string successor_of(const char* code) {
  char text[] = "untouched!";
  const int result = tivex_bankid_getSuccessor(code, text);
  EXPECT_EQ(tivex_bankid_getSuccessor(code, nullptr), result) << "without a text";
  EXPECT_EQ(text[9], '!');
  return std::to_string(result) + ' ' + text;
}

std::string fields_of(const tivex_edition::bank_row& entry) {
  return "1 " + entry.bic + '|' + entry.name + '|' + entry.postcode + '|' + entry.city + '|' +
         entry.country + "|0";
}

void expect_german(const tivex_edition::german_row& entry) {
  EXPECT_EQ(bank("DE", entry.bank_code.c_str()), fields_of(entry)) << entry.bank_code;
  tivex::bank_record record;
  ASSERT_EQ(tivex::directory_find_bank("DE", entry.bank_code.c_str(), &record), 1);
  EXPECT_EQ(record.successor, entry.successor);
  EXPECT_EQ(tivex_bankid_getMethod(entry.bank_code.c_str()), record.method);
  EXPECT_EQ(successor_of(entry.bank_code.c_str()), (entry.deleted ? "1 " : "0 ") + entry.successor)
      << entry.bank_code;
  EXPECT_EQ(record.method, std::stoi(entry.method, nullptr, 16)) << entry.bank_code;
  EXPECT_EQ(record.iban_rule, entry.iban_rule) << entry.bank_code;
  EXPECT_EQ(record.scheme_flags, 0);
}

}  // namespace

TEST(Directory, FindsEveryGermanBankInTheVersionThatHolds) {
  const std::vector<tivex_edition::german_row>& rows = facts().german.rows;
  for (const bool changed : {false, true}) {
    const fixed_clock clock(2025, 3, 2, changed ? 23 : 22, changed ? 0 : 59, changed ? 0 : 59);
    for (std::size_t index = 0; index < rows.size(); ++index) {
      const bool has_second =
          index + 1 < rows.size() && rows[index + 1].bank_code == rows[index].bank_code;
      const bool is_second = !rows[index].valid_from.empty();
      if (is_second ? changed : !(changed && has_second)) expect_german(rows[index]);
    }
  }
}

TEST(Directory, FindsEveryOtherBankAndBic) {
  for (const auto& entry : facts().austrian.rows) {
    EXPECT_EQ(bank("AT", entry.bank_code.c_str()), fields_of(entry));
  }
  for (const auto& entry : facts().swiss.rows) {
    const std::size_t first = std::min<std::size_t>(entry.bank_code.find_first_not_of('0'), 4);
    EXPECT_EQ(bank("CH", entry.bank_code.c_str() + first), fields_of(entry));
    EXPECT_EQ(bank("LI", entry.bank_code.c_str()), fields_of(entry));
  }
  for (const auto& entry : facts().bics.rows) {
    EXPECT_EQ(bic(entry.bic.c_str()), "1 " + entry.bic + '|' + entry.name + "|(null)|(null)|" +
                                          entry.bic.substr(4, 2) + '|' +
                                          std::to_string(entry.flags));
  }
}

// A few rows written out, so that generator and lookup cannot err together.
TEST(Directory, FindsAndRefusesAsTold) {
  const fixed_clock clock(2025, 3, 3);
  for (const row& r : read_table("banks.tsv", 4)) {
    const std::string call = r[0].str();
    EXPECT_EQ(call == "iban"  ? bank_of_iban(r[1].c_str())
              : call == "bic" ? bic(r[1].c_str())
                              : bank(r[1].c_str(), r[2].c_str()),
              r[3].str())
        << call << ' ' << r[1].str() << ' ' << r[2].str();
  }
  constexpr const char* unknown_codes[] = {"99999999", "100000000", "250502990",
                                           "2505029x", "",          nullptr};
  for (const char* const unknown : unknown_codes) {
    EXPECT_EQ(tivex_bankid_getMethod(unknown), -2);
    EXPECT_EQ(successor_of(unknown), "-2 ");
  }
  EXPECT_EQ(successor_of("25050299"), "1 25050180");
  EXPECT_EQ(successor_of("10090300"), "1 ");
  EXPECT_EQ(successor_of("10000000"), "0 ");
  tivex::bank_record record;
  ASSERT_EQ(tivex::directory_find_bank("DE", "10000000", &record), 1);
  EXPECT_EQ(std::to_string(record.method) + ' ' + std::to_string(record.iban_rule), "9 4201");
  ASSERT_EQ(tivex::directory_find_bank("DE", "25050299", &record), 1);
  EXPECT_STREQ(record.successor, "25050180");
}

TEST(Directory, ChangesOnItsDateWithoutBeingLoadedAnew) {
  tivex::bank_record record;
  {
    const fixed_clock before(2025, 3, 2, 22, 59, 59);
    ASSERT_EQ(tivex::directory_find_bank("DE", "30040098", &record), 1);
    EXPECT_EQ(record.iban_rule, 500);
  }
  const fixed_clock after(2025, 3, 2, 23, 0, 0);
  ASSERT_EQ(tivex::directory_find_bank("DE", "30040098", &record), 1);
  EXPECT_EQ(record.iban_rule, 503);
  EXPECT_STREQ(record.country, "DE") << "the last field of the second version";
}

TEST(Directory, KeysHashToTheirRecords) {
  std::string previous;
  for (int index = 0; index < tivex::directory_record_count; ++index) {
    const std::string record = tivex::directory_records[index];
    const std::size_t length = record[0] != '_'            ? tivex::bic_length
                               : record.starts_with("_DE") ? 11
                                                           : 8;
    const std::string key = record.substr(0, length);
    EXPECT_EQ(tivex::directory_hash(key.c_str()), index) << key;
    EXPECT_LT(previous, key);
    previous = key;
  }
  for (const char* const no_key : {"", "_AT00", "_DE1234567890123", "_AT-1000", "_AT~1000",
                                   "AACSDE33\xC3XX", "_AT/1000", "_AT{1000"}) {
    EXPECT_EQ(tivex::directory_hash(no_key), -1) << no_key;
  }
}

// Random texts, and keys with one character changed.
TEST(Directory, FindsNothingThatItDoesNotHold) {
  std::set<std::string> known;
  for (const auto& entry : facts().german.rows) known.insert("DE" + entry.bank_code);
  for (const auto& entry : facts().austrian.rows) known.insert("AT" + entry.bank_code);
  for (const auto& entry : facts().swiss.rows) known.insert("CH" + entry.bank_code);
  for (const auto& entry : facts().bics.rows) known.insert(entry.bic);
  const std::vector<std::string> keys(known.begin(), known.end());
  const std::string characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
  std::mt19937 random(1);
  std::size_t hits = 0;
  for (int round = 0; round < 1000000; ++round) {
    std::string key = keys[random() % keys.size()];
    const bool is_bic = key.size() == tivex::bic_length;
    const std::size_t first = is_bic ? 0 : 2;
    const auto change = [&](std::size_t at) {
      key[at] = characters[random() % (is_bic ? 36 : 10)];
    };
    if (round % 2 == 0) {
      change(first + random() % (key.size() - first));
    } else {
      for (std::size_t at = first; at < key.size(); ++at) change(at);
    }
    tivex::bank_record record;
    const int result =
        is_bic ? tivex::directory_find_bic(key.c_str(), &record)
               : tivex::directory_find_bank(key.substr(0, 2).c_str(), key.c_str() + 2, &record);
    ASSERT_EQ(result, known.contains(key)) << key;
    hits += static_cast<std::size_t>(result);
  }
  EXPECT_GT(hits, 1000u) << "a change that changes nothing, or leads to another key";
}

TEST(Directory, TellsWhenMemoryIsExhausted) {
  const runtime_control::failing_allocation failing(1, true);
  tivex_bank_info_t* info = nullptr;
  EXPECT_EQ(tivex_bankid_check("DE", "10000000", &info), -3);
  EXPECT_EQ(tivex_bic_getBank("MARKDEFF", &info), -3);
  EXPECT_EQ(info, nullptr);
  EXPECT_EQ(tivex_bankid_check("DE", "10000000", nullptr), 1);
}
