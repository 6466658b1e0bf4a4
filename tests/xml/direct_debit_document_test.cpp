// Direct debit documents, byte for byte and rulebook by rulebook.

#include "support/files.h"
#include "support/messages.h"
#include "support/runtime_control.h"

namespace {

const tivex_keyvalue_t mandate[] = {{"mref", "M-1"}, {"mdate", "2020-02-03"}};

pairs under_mandate(pairs more) {
  pairs list = collection;
  list.insert(list.end(), std::begin(mandate), std::end(mandate));
  return with(std::move(list), std::move(more));
}

message_ptr creditor(const char* rulebook) {
  message_ptr msg = new_message(TIVEX_DIRECT_DEBIT, rulebook);
  EXPECT_EQ(tivex_setIBAN(msg.get(), "NL91ABNA0417164300"), 1);
  EXPECT_EQ(tivex_setBIC(msg.get(), "ABNANL2A"), 1);
  EXPECT_EQ(tivex_setName(msg.get(), "Haus + Hof (Nord)"), 1);
  EXPECT_EQ(tivex_setCreditorIdentifier(msg.get(), "DE98ZZZ09999999999"), 1);
  EXPECT_EQ(tivex_setMessageId(msg.get(), "RUN 7"), 1);
  EXPECT_EQ(tivex_setDate(msg.get(), "2024-05-02"), 1);
  return msg;
}

// Everything that a message can say, for the documents in tests/data.
std::string complete_document(const char* rulebook) {
  const runtime_control::fixed_clock clock(2024, 4, 17, 7, 30, 5);
  const message_ptr msg = creditor(rulebook);
  EXPECT_EQ(tivex_setDDType(msg.get(), TIVEX_DD_B2B), 1);
  const bool structured = std::string(rulebook) == "DE-3.7";
  pairs full = under_mandate({{"name", "Eva Alt"},
                              {"ref", "No 1"},
                              {"id", "E 1"},
                              {"date", "2024-05-03"},
                              {"smnda", "1"},
                              {"old_mref", "M-0"},
                              {"old_iban", "NO9386011117947"},
                              {"addrCC", "AT"}});
  full.push_back(structured ? tivex_keyvalue_t{"addrTown", "A & B"}
                            : tivex_keyvalue_t{"addrLine1", "Am Tor 1"});
  EXPECT_EQ(add(msg, full), 1) << error_of(msg);
  const pairs bare = {{"iban", "NO9386011117947"}, {"amount", "0.1"}, {"seq", "FRST"}};
  EXPECT_EQ(add(msg, std::string(rulebook) == "DE-2.6" ? with(bare, {{"bic", "DEUTDEFF"}}) : bare),
            1);
  EXPECT_EQ(add(msg, under_mandate({{"old_iban", "NO9386011117947"}, {"date", "2024-05-03"}})), 1);
  return document_of(msg);
}

}  // namespace

TEST(DirectDebitDocument, IsWrittenByteForByte) {
  EXPECT_EQ(complete_document("DE-3.7"), test_data("direct_debit_de37.xml"));
  EXPECT_EQ(complete_document("DE-2.9"), test_data("direct_debit_de29.xml"));
}

TEST(DirectDebitDocument, FollowsTheRulebook) {
  const struct {
    const char* rulebook;
    const char* version;
    bool location;
    const char* smnda;  // where the marker stands
  } rows[] = {
      {"DE-2.6", "pain.008.002.02", true, "OrgnlDbtrAgt"},
      {"DE-2.7", "pain.008.003.02", true, "OrgnlDbtrAgt"},
      {"AT-6", "pain.008.001.02", false, "OrgnlDbtrAgt"},
      {"NL-6", "pain.008.001.02", false, "OrgnlDbtrAgt"},
      {"DE-2.8", "pain.008.003.02", true, "OrgnlDbtrAgt"},
      {"DE-2.9", "pain.008.003.02", true, "OrgnlDbtrAgt"},
      {"DE-3.0", "pain.008.001.02", true, "OrgnlDbtrAcct"},
      {"DE-3.1", "pain.008.001.02", true, "OrgnlDbtrAcct"},
      {"DE-3.5", "pain.008.001.02", true, "OrgnlDbtrAcct"},
      {"DE-3.7", "pain.008.001.08", true, "OrgnlDbtrAcct"},
  };
  for (const auto& row : rows) {
    const std::string document = complete_document(row.rulebook);
    const std::string space = std::string("urn:iso:std:iso:20022:tech:xsd:") + row.version;
    const std::string start =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Document xmlns=\"" + space +
        "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"" +
        (row.location ? " xsi:schemaLocation=\"" + space + " " + row.version + ".xsd\">\n" : ">\n");
    EXPECT_EQ(document.substr(0, start.size()), start) << row.rulebook;
    const std::size_t marker = document.find("SMNDA");
    const std::size_t around = document.rfind("<Orgnl", marker);
    EXPECT_EQ(document.substr(around + 1, std::strlen(row.smnda)), row.smnda) << row.rulebook;
  }
}

TEST(DirectDebitDocument, WritesEachAmendment) {
  const std::string former_account =
      "<OrgnlDbtrAcct><Id><IBAN>NO9386011117947</IBAN></Id></OrgnlDbtrAcct>";
  const std::string moved = "<OrgnlDbtrAcct><Id><Othr><Id>SMNDA</Id></Othr></Id></OrgnlDbtrAcct>";
  const struct {
    pairs more;
    std::string details;  // empty: no amendment
  } rows[] = {
      {{}, ""},
      {{{"old_mref", "M-0"}}, "<OrgnlMndtId>M-0</OrgnlMndtId>"},
      {{{"old_iban", "NO9386011117947"}}, former_account},
      {{{"smnda", "1"}}, moved},
      {{{"old_mref", "M-0"}, {"old_iban", "NO9386011117947"}},
       "<OrgnlMndtId>M-0</OrgnlMndtId>" + former_account},
      {{{"smnda", "1"}, {"old_iban", "NO9386011117947"}}, moved},
  };
  for (const auto& row : rows) {
    const message_ptr msg = creditor("DE-3.5");
    ASSERT_EQ(add(msg, under_mandate(row.more)), 1);
    std::string document = document_of(msg);
    std::erase_if(document, [](char c) { return c == '\n' || c == '\t'; });
    const std::string expected = row.details.empty()
                                     ? "</DtOfSgntr></MndtRltdInf>"
                                     : "</DtOfSgntr><AmdmntInd>true</AmdmntInd><AmdmntInfDtls>" +
                                           row.details + "</AmdmntInfDtls></MndtRltdInf>";
    EXPECT_NE(document.find(expected), document.npos) << row.details;
  }
}

TEST(DirectDebitDocument, RefusesAMessageWithoutCreditorOrTransactions) {
  const message_ptr msg = new_message(TIVEX_DIRECT_DEBIT, "DE-3.7");
  const struct {
    int (*set)(tivex_t*, const char*);
    const char* value;
    const char* error;
  } rows[] = {
      {tivex_setIBAN, "NO9386011117947", "Missing creditor IBAN"},
      {tivex_setBIC, "DEUTDEFF", "Missing creditor BIC"},
      {tivex_setName, "N", "Missing creditor name"},
      {tivex_setCreditorIdentifier, "DE98ZZZ09999999999", "Missing creditor identifier"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(document_of(msg), "");
    EXPECT_EQ(error_of(msg), row.error);
    EXPECT_EQ(row.set(msg.get(), row.value), 1);
  }
  EXPECT_EQ(document_of(msg), "");
  EXPECT_EQ(error_of(msg), "No transactions available");
  EXPECT_TRUE(msg->date);
  EXPECT_FALSE(msg->message_id) << "none is drawn for a refused document";
}

TEST(DirectDebitDocument, WritesCor1WhereItIsNotWithdrawn) {
  for (const char* const rulebook : all_rulebooks) {
    const message_ptr msg = creditor("DE-2.7");
    ASSERT_EQ(tivex_setDDType(msg.get(), TIVEX_DD_COR1), 1);
    ASSERT_EQ(tivex_init(3, rulebook), 1);
    ASSERT_EQ(add(msg, collection), 1);
    const bool withdrawn = std::string(rulebook).rfind("DE-3.", 0) == 0;
    const std::string document = document_of(msg);
    EXPECT_EQ(document.empty(), withdrawn) << rulebook;
    EXPECT_EQ(document.find("<Cd>COR1</Cd>") != document.npos, !withdrawn) << rulebook;
    EXPECT_EQ(error_of(msg),
              withdrawn ? "Unknown/unsupported LocalInstrumentCode (setDDType)" : "");
    msg->local_instrument = 3;
    EXPECT_EQ(document_of(msg), "");
  }
}

TEST(DirectDebitDocument, GroupsByDateAndSequenceType) {
  const message_ptr msg = creditor("DE-3.7");
  ASSERT_EQ(tivex_setMessageId(msg.get(), "M"), 1);
  const struct {
    const char* id;
    const char* sequence;
    const char* date;
  } added[] = {
      {"0", "RCUR", "2024-05-03"}, {"1", "FRST", "2024-05-03"}, {"2", "RCUR", "2024-05-03"},
      {"3", "OOFF", "2024-05-01"}, {"4", "FNAL", "2024-05-01"}, {"5", "FRST", "2024-05-01"},
      {"6", "OOFF", "2024-05-01"}, {"7", "FRST", "2024-05-02"},
  };
  for (const auto& a : added) {
    ASSERT_EQ(add(msg, with(collection, {{"id", a.id}, {"seq", a.sequence}, {"date", a.date}})), 1);
  }
  const std::string document = document_of(msg);
  std::string order;
  for (const char* const tag : {"PmtInfId", "SeqTp", "NbOfTxs", "CtrlSum", "EndToEndId"}) {
    const std::string lines = lines_with(document, tag);
    for (std::size_t at = 0; (at = lines.find('>', at)) != lines.npos; at = lines.find('\n', at)) {
      order += lines.substr(at + 1, lines.find('<', at) - at - 1) + " ";
    }
    order += "\n";
  }
  EXPECT_EQ(order,
            "M-P1 M-P2 M-P3 M-P4 M-P5 M-P6 \n"
            "FRST OOFF FNAL FRST FRST RCUR \n"
            "8 1 2 1 1 1 2 \n"
            "100.00 12.50 25.00 12.50 12.50 12.50 25.00 \n"
            "5 3 6 4 7 1 0 2 \n");
}
