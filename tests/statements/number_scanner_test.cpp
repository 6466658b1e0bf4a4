// Numbers in statements are read as the C library's scanner reads them.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#include "core/number_scanner.h"
#include "statements/mt940/mt940_dates.h"
#include "transactions/date_text.h"

namespace {

using tivex::number_scanner;

// Short texts of what a scanner treats in different ways. What follows a NUL byte must
// not be looked at.
std::string random_text(std::mt19937& random) {
  using namespace std::string_literals;
  static const std::string characters = "0123456789 +-\t\r\n/x\0"s;
  std::string text(random() % 12, ' ');
  for (char& character : text) character = characters[random() % characters.size()];
  return text;
}

// The numbers read, in their order; those not read stay as they were.
struct scanned {
  bool whole = false;
  int first = -77;
  int second = -77;
  int third = -77;
  bool operator==(const scanned&) const = default;
};

scanned date_by_library(std::string_view text) {
  std::tm date = {};
  date.tm_year = date.tm_mon = date.tm_mday = -77;
  const bool whole = tivex::scan_date(text, date);
  return {whole, date.tm_year, date.tm_mon, date.tm_mday};
}

scanned date_by_scanf(const char* text) {
  scanned result;
  result.whole =
      std::sscanf(text, "%02d%02d%02d", &result.first, &result.second, &result.third) == 3;
  return result;
}

scanned code_by_library(std::string_view text) {
  scanned result;
  result.whole = number_scanner(text).read_signed(3, result.first);
  return result;
}

scanned code_by_scanf(const char* text) {
  scanned result;
  result.whole = std::sscanf(text, "%03d", &result.first) == 1;
  return result;
}

constexpr std::uint32_t unread = 0x7fffffb3;

scanned number_by_library(std::string_view text) {
  std::uint32_t number = unread;
  const bool whole = number_scanner(text).read_unsigned(number);
  return {whole, static_cast<int>(number)};
}

// What the numbers of 64 bits are cut to, as a C library does whose long has them.
scanned number_by_scanf(const char* text) {
  unsigned long long number = unread;
  const bool whole = std::sscanf(text, "%llu", &number) == 1;
  return {whole, static_cast<int>(number)};
}

scanned numbers_by_library(std::string_view text) {
  std::uint32_t number = unread;
  std::uint32_t sequence = unread;
  number_scanner scanner(text);
  const bool whole =
      scanner.read_unsigned(number) && scanner.skip('/') && scanner.read_unsigned(sequence);
  return {whole, static_cast<int>(number), static_cast<int>(sequence)};
}

scanned numbers_by_scanf(const char* text) {
  unsigned long long number = unread;
  unsigned long long sequence = unread;
  const bool whole = std::sscanf(text, "%llu/%llu", &number, &sequence) == 2;
  return {whole, static_cast<int>(number), static_cast<int>(sequence)};
}

}  // namespace

TEST(NumberScanner, ReadsWhatTheCLibraryReads) {
  const struct {
    const char* format;
    scanned (*by_library)(std::string_view text);
    scanned (*by_scanf)(const char* text);
  } rows[] = {{"%02d%02d%02d", date_by_library, date_by_scanf},
              {"%03d", code_by_library, code_by_scanf},
              {"%u", number_by_library, number_by_scanf},
              {"%u/%u", numbers_by_library, numbers_by_scanf}};
  std::mt19937 random(4711);
  std::size_t whole[std::size(rows)] = {};
  for (int count = 0; count < 50000; ++count) {
    const std::string text = random_text(random);
    for (std::size_t row = 0; row < std::size(rows); ++row) {
      const auto& [format, by_library, by_scanf] = rows[row];
      const scanned expected = by_scanf(text.c_str());
      whole[row] += expected.whole ? 1 : 0;
      ASSERT_EQ(by_library(text), expected) << format << " of " << testing::PrintToString(text);
    }
  }
  for (const std::size_t count : whole) EXPECT_GT(count, 500u);
}

// A date with a few characters changed.
TEST(NumberScanner, ReadsADateAsTheCLibraryDoes) {
  std::mt19937 random(4712);
  const std::string characters = "0123456789 +-\t/x";
  std::size_t whole = 0;
  for (int count = 0; count < 50000; ++count) {
    std::string text = "2024-04-17";
    for (auto changes = random() % 5; changes > 0; --changes) {
      text[random() % text.size()] = characters[random() % characters.size()];
    }
    unsigned year = 0, month = 0, day = 0;
    const bool expected = std::sscanf(text.c_str(), "%04u-%02u-%02u", &year, &month, &day) == 3;
    whole += expected ? 1 : 0;
    ASSERT_EQ(tivex::scan_date(text.c_str()), expected) << testing::PrintToString(text);
  }
  EXPECT_TRUE(whole > 5000 && whole < 45000) << whole;
}
