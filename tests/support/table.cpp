#include "support/table.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

std::string unescape(const std::string& written) {
  static const std::string letters = "tnrvf";
  std::string text;
  for (std::size_t at = 0; at < written.size(); ++at) {
    const std::size_t letter = written[at] == '\\' ? letters.find(written[at + 1]) : letters.npos;
    if (letter != letters.npos) {
      text += "\t\n\r\v\f"[letter];
      ++at;
    } else if (written.compare(at, 2, "\\x") == 0) {
      text += static_cast<char>(std::stoi(written.substr(at + 2, 2), nullptr, 16));
      at += 3;
    } else {
      text += written[at];
    }
  }
  return text;
}

}  // namespace

cell::cell(const std::string& written) {
  const std::size_t star = written.find('*');
  const bool repeats =
      star != written.npos && star > 0 && written.find_first_not_of("0123456789") == star;
  if (repeats) {
    text_.emplace();
    for (int left = std::stoi(written); left > 0; --left) *text_ += written.substr(star + 1);
  } else if (written != "(null)") {
    text_ = unescape(written);
  }
}

std::string read_data(const std::string& name) {
  std::ifstream stream(TIVEX_TEST_DATA "/" + name, std::ios::binary);
  EXPECT_TRUE(stream) << name;
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<std::string> split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find(separator, start)) != text.npos;
       start = end + separator.size()) {
    parts.push_back(text.substr(start, end - start));
  }
  parts.push_back(text.substr(start));
  return parts;
}

std::vector<row> read_table(const std::string& name, std::size_t columns) {
  std::vector<row> rows;
  for (const std::string& line : split(read_data(name), "\n")) {
    if (line.empty() || line[0] == '#') continue;
    const std::vector<std::string> cells = split(line, "\t");
    EXPECT_LE(cells.size(), columns) << name << ": " << line;
    rows.emplace_back(cells.begin(), cells.end());
    rows.back().resize(columns, cell(""));
  }
  EXPECT_FALSE(rows.empty()) << name;
  return rows;
}
