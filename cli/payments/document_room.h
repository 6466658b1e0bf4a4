// How much one document holds.
#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace tivex_program {

// The library writes documents below this size only.
inline constexpr std::uint64_t longest_document = std::uint64_t{1} << 32;

// What each transaction takes at least, with an IBAN of 15 characters, an identifier of
// one and nothing else, in a strict document by ISO's schema: 241 bytes; 336 with a BIC
// of 8.
inline constexpr std::uint64_t least_credit_transfer = 240;
inline constexpr std::uint64_t least_direct_debit = 335;

// The transactions of a file up to this size stay below that: none takes 32 times as much in
// a document as in the file, where the shortest has 18 bytes, or 23 of a debit.
inline constexpr std::uint64_t roomy_file = longest_document / 32;

// The bytes of a document that grow with its transactions: those of its payment blocks
// from the first transaction on.
constexpr std::uint64_t transaction_bytes(std::string_view document) {
  std::uint64_t bytes = 0;
  for (std::size_t start = 0; (start = document.find("TxInf>")) != std::string_view::npos;) {
    document.remove_prefix(start);
    const std::size_t length = std::min(document.find("</PmtInf>"), document.size());
    bytes += length;
    document.remove_prefix(length);
  }
  return bytes;
}

}  // namespace tivex_program
