// Creation, release and header setters, through the exported functions.

#include <functional>

#include "support/messages.h"

namespace {

const std::string long_text(200, 'x');
const char* letters(std::size_t count) { return long_text.c_str() + 200 - count; }

const std::string thirty_five_umlauts = [] {
  std::string text;
  for (int count = 0; count < 35; ++count) text += "ü";
  return text;
}();

using text_setter = int (*)(tivex_t*, const char*);

struct row {
  text_setter set;
  const char* value;
  const char* error;  // empty: accepted
  const char* rulebook = "DE-3.5";
};

const row rows[] = {
    {tivex_setIBAN, "AT611904300234573201", ""},
    {tivex_setIBAN, nullptr, "Invalid IBAN (NULL) ((null))"},
    {tivex_setIBAN, "", "Invalid or unknown IBAN country code ()"},
    {tivex_setIBAN, "AT61", "Wrong IBAN length (AT61)"},
    {tivex_setIBAN, "AT61190430023457320A", "Invalid IBAN format (AT61190430023457320A)"},
    {tivex_setIBAN, "AT611904300234573202", "Invalid IBAN checksum (AT611904300234573202)"},

    {tivex_setBIC, "deutdeff500", ""},
    {tivex_setBIC, nullptr, "tivex_setBIC: invalid BIC"},
    {tivex_setBIC, "DEUTDEFF5000", "tivex_setBIC: invalid BIC"},
    {tivex_setBIC, "", "tivex_setBIC: invalid BIC format"},
    {tivex_setBIC, "DEUTDEFF5", "tivex_setBIC: invalid BIC format"},

    {tivex_setName, letters(70), ""},
    {tivex_setName, letters(71), "tivex_setAccount: Name too long"},
    {tivex_setName, thirty_five_umlauts.c_str(), ""},
    {tivex_setName, thirty_five_umlauts.c_str(), "tivex_setName: invalid character '\xC3' in name",
     "DE-2.6"},
    {tivex_setName, nullptr, "tivex_setAccount: Name too short"},
    {tivex_setName, "", "tivex_setAccount: Name too short"},
    {tivex_setName, "A;B", "tivex_setName: invalid character ';' in name"},
    {tivex_setName, "A;B", "", "AT-6"},

    {tivex_setCreditorIdentifier, "DE98ZZZ09999999999", ""},
    {tivex_setCreditorIdentifier, "de98ZZZ09999999999", ""},
    {tivex_setCreditorIdentifier, "DE98###09999999999", ""},
    {tivex_setCreditorIdentifier, nullptr, "Creditor Identifier too short"},
    {tivex_setCreditorIdentifier, "DE98ZZ", "Creditor Identifier too short"},
    {tivex_setCreditorIdentifier, letters(36), "Creditor Identifier too long"},
    {tivex_setCreditorIdentifier, letters(35), "Invalid Creditor Identifier checksum"},
    {tivex_setCreditorIdentifier, "DE98ZZZ", "Invalid Creditor Identifier checksum"},
    {tivex_setCreditorIdentifier, "DE99ZZZ09999999999", "Invalid Creditor Identifier checksum"},
    {tivex_setCreditorIdentifier, "DE98ZZZ0999 999999", "Invalid character in Creditor Identifier"},
    {tivex_setCreditorIdentifier, "D-98ZZZ09999999999", "Invalid character in Creditor Identifier"},
    {tivex_setCreditorIdentifier, "DE98ZZZ0\xC3\x84", "Invalid character in Creditor Identifier"},

    {tivex_setDate, "2024-04-17", ""},
    {tivex_setDate, "2024-13-45", ""},
    {tivex_setDate, " 024-+1- 5", ""},  // as the scanner reads numbers
    {tivex_setDate, "24-1-1xxxx", ""},  // and what follows is not looked at
    {tivex_setDate, nullptr, "Invalid date"},
    {tivex_setDate, "2024-1-1", "Invalid date"},
    {tivex_setDate, "2024-04-170", "Invalid date"},
    {tivex_setDate, "2024/01/01", "Invalid date format"},
    {tivex_setDate, "2024-01-xx", "Invalid date format"},
    {tivex_setDate, "12345-1-01", "Invalid date format"},

    {tivex_setMessageId, "aZ09 '()+,-./:? aZ09 '()+,-./:? 123", ""},
    {tivex_setMessageId, nullptr, "Invalid message id"},
    {tivex_setMessageId, "", "Invalid message id"},
    {tivex_setMessageId, letters(36), "Invalid message id"},
    {tivex_setMessageId, "A_B", "Invalid message id"},
    {tivex_setMessageId, "A#B", "Invalid message id", "AT-6"},
    {tivex_setMessageId, "A\xC3\x84", "Invalid message id"},
};

}  // namespace

TEST(TextSetters, AcceptOrSayWhyNot) {
  for (const row& r : rows) {
    const message_ptr msg = new_message(TIVEX_DIRECT_DEBIT, r.rulebook);
    const std::string what = std::string(r.rulebook) + " " + (r.value ? r.value : "null");
    EXPECT_EQ(r.set(msg.get(), r.value), *r.error == '\0' ? 1 : 0) << what;
    EXPECT_EQ(error_of(msg), r.error) << what;
    EXPECT_EQ(r.set(nullptr, r.value), 0) << what;
  }
}

TEST(TextSetters, KeepTheEarlierValueWhenTheyFail) {
  const message_ptr msg = credit_transfer();
  const struct {
    text_setter set;
    tivex::owned_text tivex::message::*field;
    const char* given;
    const char* stored;
    const char* refused;
  } fields[] = {
      {tivex_setIBAN, &tivex_t::iban, "NO9386011117947", "NO9386011117947", "NO93"},
      {tivex_setBIC, &tivex_t::bic, "deutDeff", "DEUTDEFF", "DEUT"},
      {tivex_setName, &tivex_t::name, "Name", "Name", ""},
      {tivex_setCreditorIdentifier, &tivex_t::creditor_id, "de98ZZZ09999999999",
       "de98ZZZ09999999999", "DE98"},
      {tivex_setDate, &tivex_t::date, "2024-04-17", "2024-04-17", "today"},
      {tivex_setMessageId, &tivex_t::message_id, "M 1", "M 1", "M_1"},
  };
  for (const auto& f : fields) {
    EXPECT_EQ(f.set(msg.get(), f.given), 1) << f.given;
    EXPECT_EQ(f.set(msg.get(), f.refused), 0) << f.refused;
    EXPECT_STREQ((msg.get()->*f.field).c_str(), f.stored);
  }
}

TEST(NumberSetters, AcceptOrSayWhyNot) {
  const message_ptr transfer = credit_transfer("DE-2.7");
  for (const int code : {0, 1, 2, 3}) EXPECT_EQ(tivex_setDDType(transfer.get(), code), 0);
  EXPECT_EQ(error_of(transfer), "Not a direct debit message");

  for (const char* const name : all_rulebooks) {
    const message_ptr debit = new_message(TIVEX_DIRECT_DEBIT, name);
    EXPECT_EQ(debit->local_instrument, TIVEX_DD_CORE);
    EXPECT_EQ(tivex_setDDType(debit.get(), TIVEX_DD_B2B), 1) << name;
    const bool cor1 = std::string("DE-2.7 AT-6 NL-6 DE-2.8 DE-2.9").find(name) != std::string::npos;
    EXPECT_EQ(tivex_setDDType(debit.get(), TIVEX_DD_COR1), cor1 ? 1 : 0) << name;
    EXPECT_EQ(debit->local_instrument, cor1 ? TIVEX_DD_COR1 : TIVEX_DD_B2B) << name;
    EXPECT_EQ(error_of(debit), cor1 ? "" : "COR1 is not allowed with selected SEPA rulebook");
    for (const int unknown : {-1, 3}) EXPECT_EQ(tivex_setDDType(debit.get(), unknown), 0);
    EXPECT_EQ(error_of(debit), "Unknown/unsupported LocalInstrumentCode (setDDType)");
    EXPECT_EQ(tivex_setDDType(debit.get(), TIVEX_DD_CORE), 1) << name;
  }

  EXPECT_EQ(transfer->batch_booking, 1);
  EXPECT_EQ(tivex_setBatchBooking(transfer.get(), 0), 1);
  for (const int mode : {2, 255}) {
    EXPECT_EQ(tivex_setBatchBooking(transfer.get(), static_cast<unsigned char>(mode)), 0);
  }
  EXPECT_EQ(error_of(transfer), "Invalid BatchBooking mode (only 0 or 1 allowed)");
  EXPECT_EQ(transfer->batch_booking, 0);
  EXPECT_EQ(tivex_setDDType(nullptr, 0), 0);
  EXPECT_EQ(tivex_setBatchBooking(nullptr, 0), 0);
}

TEST(Messages, AreOfTwoTypes) {
  for (const int type : {-1, 0, 3}) EXPECT_EQ(tivex_new(type), nullptr);
  tivex_free(nullptr);
}
