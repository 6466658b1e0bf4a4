// What the program foresees of a document's size.
#include "../../cli/document_room.h"

#include <gtest/gtest.h>

#include "program.h"

namespace {

class DocumentRoom : public testing::TestWithParam<const char*> {};

// Each more than the shortest transaction takes what is counted, and no less than is
// foreseen; nor is foreseen much less.
TEST_P(DocumentRoom, IsForeseen) {
  std::uint64_t shortest[2] = {~0U, ~0U};
  for (const char* const bic : {"", "BKAUATWW"}) {
    const std::string options = std::string(" --lenient --rulebook ") + GetParam() + " -";
    const std::string row = std::string("NO9386011117947,0.01,RCUR,x,") + bic + "\n";
    if (std::string(bic + options).starts_with(" --lenient --rulebook DE-2.6")) continue;
    for (const bool debits : {false, true}) {
      const auto document = [&](const std::string& rows) {
        return debits
                   ? run("debit" + options, "iban,amount,seq,id,bic\n" + rows).output
                   : run("transfer" + options, replaced("iban,amount,id,bic\n" + rows, "RCUR,", ""))
                         .output;
      };
      const std::string one = document(row), two = document(row + row);
      const std::uint64_t bytes = two.size() - one.size();
      EXPECT_EQ(tivex_program::transaction_bytes(two) - tivex_program::transaction_bytes(one),
                bytes);
      shortest[debits] = std::min(shortest[debits], bytes);
    }
  }
  EXPECT_GT(shortest[0], tivex_program::least_credit_transfer);
  EXPECT_GT(shortest[1], tivex_program::least_direct_debit);
  EXPECT_LT(shortest[0], tivex_program::least_credit_transfer * 3 / 2);
  EXPECT_LT(shortest[1], tivex_program::least_direct_debit * 3 / 2);
}

INSTANTIATE_TEST_SUITE_P(Rulebooks, DocumentRoom,
                         testing::Values("DE-2.6", "DE-2.7", "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1",
                                         "DE-3.5", "DE-3.7", "AT-6", "NL-6"));

}  // namespace
