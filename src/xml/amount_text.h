#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tivex {

// Large enough for every amount text (at most 21 characters) and count text.
using number_text = char[128];

// A sum in euro as whole cents, rounded half up; the largest number in magnitude
// where 64 bits cannot hold them.
std::int64_t cents_of(double value);

// Each writes a number and gives back what it has written.

// Cents as euro with two decimals.
std::string_view format_cents(char* out, std::size_t size, std::int64_t cents);

// A sum in euro with two decimals, rounded half up to cents. A sum beyond
// 92233720368547758.07 is written as that.
std::string_view format_amount(char* out, std::size_t size, double value);

std::string_view format_count(char* out, std::size_t size, std::uint32_t count);

}  // namespace tivex
