// What the program foresees of a document's size.
#include "../../cli/payments/document_room.h"

#include <gtest/gtest.h>

#include "program.h"

namespace {

class DocumentRoom : public testing::TestWithParam<const char*> {};

// Returns what a second transaction adds to a document; it is all that grows.
std::uint64_t growth(const std::string& command, const std::string& header,
                     const std::string& row) {
  const std::string one = run(command, header + row).output;
  const std::string two = run(command, header + row + row).output;
  const std::uint64_t bytes = two.size() - one.size();
  EXPECT_EQ(tivex_program::transaction_bytes(two) - tivex_program::transaction_bytes(one), bytes);
  return bytes;
}

// The oldest rulebook asks for a BIC; in a debit it is shorter than its absence. The
// newest one asks for what German schemas do.
TEST_P(DocumentRoom, IsForeseen) {
  const std::string rulebook = GetParam();
  const std::string options = " --message-id M --rulebook " + rulebook + " -";
  const char* const bic = rulebook.starts_with("DE-2.6") ? "BKAUATWW" : "";
  const char* const asked = rulebook == "DE-26.11" ? ",A,M,2026-01-01\n" : ",,,\n";
  const std::string row = "NO9386011117947,0.01,x,";
  const std::uint64_t transfer = growth("transfer" + options, "iban,amount,id,bic,name\n",
                                        row + bic + (rulebook == "DE-26.11" ? ",A\n" : ",\n"));
  const std::uint64_t debit = growth("debit" + options, "iban,amount,id,bic,seq,name,mref,mdate\n",
                                     row + "BKAUATWW,RCUR" + asked);
  EXPECT_GT(transfer, tivex_program::least_credit_transfer);
  EXPECT_GT(debit, tivex_program::least_direct_debit);
  EXPECT_LT(transfer, tivex_program::least_credit_transfer * 5 / 3);
  EXPECT_LT(debit, tivex_program::least_direct_debit * 5 / 3);
}

INSTANTIATE_TEST_SUITE_P(Rulebooks, DocumentRoom,
                         testing::Values("DE-2.6 --lenient", "DE-2.7 --lenient", "DE-2.8 --lenient",
                                         "DE-2.9 --lenient", "DE-3.0 --lenient", "DE-3.1 --lenient",
                                         "DE-3.5 --lenient", "DE-3.7 --lenient", "DE-26.11",
                                         "AT-6 --lenient", "NL-6 --lenient", "NL-6"));

}  // namespace
