#pragma once

#include <string>

namespace tivex_program {

// What is wrong with one value of a row, with a row, or with a value of the header.
struct row_fault {
  std::string key = {};     // empty when no single key is at fault
  std::string reason = {};  // the same for all rows with it
  std::string detail = {};  // of this row
  std::string advice = {};  // empty where the reason's own is meant
};

// All of it but the key.
inline std::string one_text(const row_fault& fault) {
  std::string text = fault.reason;
  if (!fault.detail.empty()) text += " (" + fault.detail + ')';
  if (!fault.advice.empty()) text += "; " + fault.advice;
  return text;
}

}  // namespace tivex_program
