#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

// The content of a file in tests/data.
inline std::string test_data(const std::string& name) {
  std::ifstream stream(TIVEX_TEST_DATA "/" + name, std::ios::binary);
  EXPECT_TRUE(stream) << name;
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}
