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

// The oldest rulebook asks for a BIC; in a debit it is shorter than its absence.
TEST_P(DocumentRoom, IsForeseen) {
  const std::string options =
      std::string(" --lenient --message-id M --rulebook ") + GetParam() + " -";
  const bool oldest = std::string(GetParam()) == "DE-2.6";
  const std::uint64_t transfer =
      growth("transfer" + options, "iban,amount,id,bic\n",
             oldest ? "NO9386011117947,0.01,x,BKAUATWW\n" : "NO9386011117947,0.01,x,\n");
  const std::uint64_t debit = growth("debit" + options, "iban,amount,id,seq,bic\n",
                                     "NO9386011117947,0.01,x,RCUR,BKAUATWW\n");
  EXPECT_GT(transfer, tivex_program::least_credit_transfer);
  EXPECT_GT(debit, tivex_program::least_direct_debit);
  EXPECT_LT(transfer, tivex_program::least_credit_transfer * 3 / 2);
  EXPECT_LT(debit, tivex_program::least_direct_debit * 3 / 2);
}

INSTANTIATE_TEST_SUITE_P(Rulebooks, DocumentRoom,
                         testing::Values("DE-2.6", "DE-2.7", "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1",
                                         "DE-3.5", "DE-3.7", "AT-6", "NL-6"));

}  // namespace
