// The patterns against the C library's matcher, on texts near their form.

#include <gtest/gtest.h>
#include <regex.h>

#include <cstdlib>
#include <functional>
#include <random>
#include <set>

#include "support/table.h"
#include "validation/format_check.h"
#include "validation/iban.h"
#include "validation/iban_countries.h"
#include "validation/patterns.h"

namespace {

class posix_pattern {
 public:
  explicit posix_pattern(const char* text) {
    EXPECT_EQ(regcomp(&compiled_, text, REG_EXTENDED), 0) << text;
  }
  ~posix_pattern() { regfree(&compiled_); }
  posix_pattern(const posix_pattern&) = delete;
  posix_pattern& operator=(const posix_pattern&) = delete;
  bool matches(const std::string& text) const {
    return regexec(&compiled_, text.c_str(), 0, nullptr, 0) == 0;
  }

 private:
  regex_t compiled_ = {};
};

using verdict = std::function<bool(const std::string& text)>;

bool has_iban_form(const std::string& text) {
  static const std::set<std::string> faults = {"Invalid or unknown IBAN country code",
                                               "Wrong IBAN length", "Invalid IBAN format"};
  const char* reason = "";
  tivex::iban_validate(text.c_str(), &reason);
  return !faults.contains(reason);
}

bool has_bic_form(const std::string& text) {
  return tivex::format_check(tivex::FORMAT_BIC, text.c_str());
}

// So many texts for each pattern; before a release a million.
std::size_t text_count() {
  const char* const count = std::getenv("TIVEX_PATTERN_TEXTS");
  return count != nullptr ? std::stoul(count) : 20'000;
}

void expect_same(const posix_pattern& posix, const verdict& has_form, const std::string& text) {
  ASSERT_EQ(has_form(text), posix.matches(text)) << testing::PrintToString(text);
}

// Each position changed to each byte, each length up to twice that of the text, and
// texts with a few characters changed.
void compare(const char* pattern, const verdict& has_form, const std::string& good) {
  const posix_pattern posix(pattern);
  ASSERT_TRUE(posix.matches(good)) << good;
  std::size_t count = 0;
  for (std::size_t at = 0; at < good.size(); ++at) {
    for (int byte = 1; byte < 256; ++byte, ++count) {
      std::string text = good;
      text[at] = static_cast<char>(byte);
      expect_same(posix, has_form, text);
    }
  }
  for (std::size_t size = 0; size <= 2 * good.size(); ++size, ++count) {
    expect_same(posix, has_form, (good + good.substr(good.size() - 3) + good).substr(0, size));
  }
  std::mt19937 random(1);
  const std::string likely = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ19aoAZ";
  std::size_t matching = 0;
  for (; count < text_count(); ++count) {
    std::string text = good;
    for (auto changes = random() % 4; changes > 0; --changes) {
      text[random() % text.size()] = random() % 16 == 0 ? static_cast<char>(1 + random() % 255)
                                                        : likely[random() % likely.size()];
    }
    if (random() % 8 == 0) text.resize(random() % (text.size() + 4), 'A');
    matching += posix.matches(text) ? 1 : 0;
    expect_same(posix, has_form, text);
  }
  EXPECT_GT(matching, 100u) << pattern;
}

}  // namespace

TEST(Patterns, MatchWhatTheCLibraryMatches) {
  std::size_t compared = 0;
  for (const row& r : read_table("ibans.tsv", 2)) {
    if (!r[1].str().empty()) continue;
    const tivex::iban_country& country = tivex::iban_country_table.at(compared++);
    // With another country in front a text may have the form of that one.
    const auto has_form = [&country](const std::string& text) {
      return text.starts_with(country.code) && has_iban_form(text);
    };
    compare(country.pattern, has_form, r[0].str());
  }
  EXPECT_EQ(compared, tivex::iban_country_table.size());
  const char* const bic = "^[A-Z]{6}[A-Z2-9][A-NP-Z0-9]([A-Z0-9]{3})?$";
  for (const char* const good : {"DEUTDEFF", "DEUTDEFF500"}) compare(bic, has_bic_form, good);
}

TEST(Patterns, TakeAGroupOnceOrNotAtAll) {
  constexpr tivex::text_pattern pattern = tivex::translate_pattern("^a[b-cX]{2}(Z{2}9)?$");
  for (const char* const good : {"abc", "aXb", "abcZZ9"}) EXPECT_TRUE(pattern.matches(good));
  for (const char* const bad : {"", "a", "ab", "abcZ", "abcZZ", "abcZZ9Z", "abcZZ9ZZ9", "abd"}) {
    EXPECT_FALSE(pattern.matches(bad)) << bad;
  }
}
