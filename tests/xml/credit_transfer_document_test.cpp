// Credit transfer documents, byte for byte and rulebook by rulebook.

#include "support/files.h"
#include "support/messages.h"
#include "support/runtime_control.h"
#include "transactions/credit_transfer.h"

namespace {

// Everything that a message can say, for the documents in tests/data.
message_ptr complete_message(const char* rulebook) {
  message_ptr msg = credit_transfer(rulebook);
  EXPECT_EQ(tivex_setIBAN(msg.get(), "NL91ABNA0417164300"), 1);
  EXPECT_EQ(tivex_setBIC(msg.get(), "ABNANL2A"), 1);
  EXPECT_EQ(tivex_setName(msg.get(), "Haus + Hof (Nord)"), 1);
  EXPECT_EQ(tivex_setMessageId(msg.get(), "RUN 7"), 1);
  EXPECT_EQ(tivex_setDate(msg.get(), "2024-05-02"), 1);
  EXPECT_EQ(tivex_setBatchBooking(msg.get(), 0), 1);
  return msg;
}

const tivex_keyvalue_t address_lines[] = {
    {"addrCC", "AT"}, {"addrLine1", "Am Tor 1"}, {"addrLine2", "1010 Wien"}};

const tivex_keyvalue_t address_parts[] = {
    {"addrCC", "AT"},     {"addrDept", "D"},    {"addrSubDept", "SD"}, {"addrStreet", "<Gasse>"},
    {"addrNum", "1"},     {"addrBldg", "BN"},   {"addrFloor", "F"},    {"addrPoBox", "PB"},
    {"addrRoom", "R"},    {"addrCode", "1010"}, {"addrTown", "A & B"}, {"addrLoc", "L"},
    {"addrDstrct", "DS"}, {"addrCtrySub", "CS"}};

std::string complete_document(const char* rulebook) {
  const runtime_control::fixed_clock clock(2024, 4, 17, 7, 30, 5);
  const message_ptr msg = complete_message(rulebook);
  pairs full = with(payment, {{"name", "Eva Alt"},
                              {"ref", "No 1"},
                              {"purp", "SALA"},
                              {"id", "E 1"},
                              {"date", "2024-05-03"}});
  if (std::string(rulebook) == "DE-3.7") {
    full.insert(full.end(), std::begin(address_parts), std::end(address_parts));
  } else {
    full.insert(full.end(), std::begin(address_lines), std::end(address_lines));
  }
  EXPECT_EQ(add(msg, full), 1) << error_of(msg);
  EXPECT_EQ(add(msg, with(payment, {{"amount", "0.1"}})), 1);
  EXPECT_EQ(add(msg, with(payment, {{"amount", "1234567.899"}, {"date", "2024-05-03"}})), 1);
  return document_of(msg);
}

}  // namespace

TEST(CreditTransferDocument, IsWrittenByteForByte) {
  EXPECT_EQ(complete_document("DE-3.7"), test_data("credit_transfer_de37.xml"));
  EXPECT_EQ(complete_document("DE-2.6"), test_data("credit_transfer_de26.xml"));
}

TEST(CreditTransferDocument, FollowsTheRulebook) {
  const struct {
    const char* rulebook;
    const char* version;
    bool location;
  } rows[] = {
      {"DE-2.6", "pain.001.002.03", true}, {"DE-2.7", "pain.001.003.03", true},
      {"AT-6", "pain.001.001.03", false},  {"NL-6", "pain.001.001.03", false},
      {"DE-2.8", "pain.001.003.03", true}, {"DE-2.9", "pain.001.003.03", true},
      {"DE-3.0", "pain.001.001.03", true}, {"DE-3.1", "pain.001.001.03", true},
      {"DE-3.5", "pain.001.001.03", true},
  };
  // All but one differ in the start tag only.
  const std::string model = test_data("credit_transfer_de26.xml");
  const std::string rest = model.substr(model.find("\t<CstmrCdtTrfInitn>"));
  for (const auto& row : rows) {
    const std::string space = std::string("urn:iso:std:iso:20022:tech:xsd:") + row.version;
    const std::string start =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Document xmlns=\"" + space +
        "\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"" +
        (row.location ? " xsi:schemaLocation=\"" + space + " " + row.version + ".xsd\">\n" : ">\n");
    EXPECT_EQ(complete_document(row.rulebook), start + rest) << row.rulebook;
  }
}

TEST(CreditTransferDocument, NeedsARulebook) {
  const message_ptr msg = credit_transfer();
  for (const int unknown : {-1, 10}) {
    tivex::rulebook = unknown;
    EXPECT_EQ(document_of(msg), "");
    EXPECT_EQ(error_of(msg), "unknown/unsupported SEPA rulebook selected");
  }
  EXPECT_TRUE(msg->message_id) << "it is drawn before";
  EXPECT_EQ(tivex_toXML(nullptr), nullptr);
}

TEST(CreditTransferDocument, WritesWhatIsPresent) {
  const message_ptr msg = credit_transfer();
  const std::string empty = document_of(msg);
  EXPECT_EQ(lines_with(empty, "NbOfTxs"), "<NbOfTxs>0</NbOfTxs>\n");
  EXPECT_EQ(lines_with(empty, "CtrlSum"), "<CtrlSum>0.00</CtrlSum>\n");
  EXPECT_EQ(lines_with(empty, "PmtInf"), "");
  EXPECT_NE(empty.find("\t\t\t<InitgPty>\n\t\t\t</InitgPty>\n"), empty.npos);

  ASSERT_EQ(add(msg, {{"iban", "NO9386011117947"}, {"amount", "1"}, {"ref", ""}}), 1);
  ASSERT_EQ(add(msg, {{"iban", "NO9386011117947"}, {"amount", "1"}, {"addrStreet", "x"}}), 1);
  const std::string bare = document_of(msg);
  EXPECT_NE(bare.find("<Dbtr>\n\t\t\t</Dbtr>"), bare.npos);
  EXPECT_NE(bare.find("<Id>\n\t\t\t\t</Id>"), bare.npos);
  EXPECT_NE(bare.find("<FinInstnId>\n\t\t\t\t</FinInstnId>"), bare.npos);
  EXPECT_NE(bare.find("<Cdtr>\n\t\t\t\t</Cdtr>"), bare.npos) << "a street alone is no address";
  EXPECT_NE(bare.find("<RmtInf>\n\t\t\t\t</RmtInf>"), bare.npos);
  EXPECT_EQ(lines_with(bare, "Ustrd"), "<Ustrd></Ustrd>\n");
  EXPECT_EQ(bare.find("CdtrAgt"), bare.npos);
  EXPECT_EQ(bare.find("Purp"), bare.npos);
}

TEST(CreditTransferDocument, TakesTheAddressFormOfTheMomentOfWriting) {
  const message_ptr msg = credit_transfer("DE-3.5");
  ASSERT_EQ(add(msg, with(payment, {{"addrLine1", "x"}})), 1);
  ASSERT_EQ(tivex_init(3, "DE-3.7"), 1);
  EXPECT_NE(document_of(msg).find("<PstlAdr>\n\t\t\t\t\t</PstlAdr>"), std::string::npos);
}

TEST(CreditTransferDocument, GroupsByDateInOrder) {
  const message_ptr msg = credit_transfer();
  ASSERT_EQ(tivex_setMessageId(msg.get(), "M"), 1);
  ASSERT_EQ(tivex_setDate(msg.get(), "2024-05-01"), 1);
  const char* const dates[] = {"2024-05-03", "2024-05-01", "2024-05-03", "2024-05-02", nullptr};
  for (int index = 0; index < 5; ++index) {
    const std::string id = std::to_string(index);
    pairs list = with(payment, {{"id", id.c_str()}});
    if (dates[index] != nullptr) list.push_back({"date", dates[index]});
    ASSERT_EQ(add(msg, list), 1);
  }
  const std::string document = document_of(msg);
  EXPECT_EQ(lines_with(document, "PmtInfId"),
            "<PmtInfId>M-P1</PmtInfId>\n<PmtInfId>M-P2</PmtInfId>\n<PmtInfId>M-P3</PmtInfId>\n");
  EXPECT_EQ(lines_with(document, "ReqdExctnDt"),
            "<ReqdExctnDt>2024-05-01</ReqdExctnDt>\n<ReqdExctnDt>2024-05-02</ReqdExctnDt>\n"
            "<ReqdExctnDt>2024-05-03</ReqdExctnDt>\n");
  std::string ids;
  for (const char id : lines_with(document, "EndToEndId")) {
    if (id >= '0' && id <= '9') ids += id;
  }
  EXPECT_EQ(ids, "14302");
  EXPECT_EQ(lines_with(document, "CtrlSum"),
            "<CtrlSum>62.50</CtrlSum>\n<CtrlSum>25.00</CtrlSum>\n<CtrlSum>12.50</CtrlSum>\n"
            "<CtrlSum>25.00</CtrlSum>\n");
}

TEST(CreditTransferDocument, RefusesADateThatNoHostCanSet) {
  const message_ptr msg = credit_transfer();
  ASSERT_EQ(add(msg, payment), 1);
  static_cast<tivex::ct_transaction*>(msg->first)->date.assign("2024-05-010");
  EXPECT_EQ(document_of(msg), "");
  EXPECT_EQ(error_of(msg), "Internal error (pmt not found)");
}

TEST(CreditTransferDocument, KeepsManyDatesAndTransactionsApart) {
  const message_ptr msg = credit_transfer();
  for (int index = 0; index < 2000; ++index) {
    char date[16];
    std::snprintf(date, sizeof date, "2024-%02d-%02d", index * 7 % 12 + 1, index * 11 % 28 + 1);
    ASSERT_EQ(add(msg, with(payment, {{"date", date}, {"amount", "0.07"}})), 1);
  }
  const std::string document = document_of(msg);
  const std::string counts = lines_with(document, "NbOfTxs");
  EXPECT_EQ(counts.rfind("<NbOfTxs>2000</NbOfTxs>\n", 0), 0u);
  EXPECT_EQ(lines_with(document, "CtrlSum").rfind("<CtrlSum>140.00</CtrlSum>\n", 0), 0u);
  int sum = 0;
  int blocks = 0;
  std::string last_date;
  for (std::size_t at = document.find("<PmtInf>"); at != document.npos;
       at = document.find("<PmtInf>", at + 1), ++blocks) {
    const std::size_t end = document.find("</PmtInf>", at);
    const std::string block = document.substr(at, end - at);
    const int count = std::atoi(lines_with(block, "NbOfTxs").c_str() + 9);
    int found = 0;
    for (std::size_t tx = block.find("<CdtTrfTxInf>"); tx != block.npos;
         tx = block.find("<CdtTrfTxInf>", tx + 1)) {
      ++found;
    }
    EXPECT_EQ(found, count);
    sum += count;
    const std::string date = lines_with(block, "ReqdExctnDt");
    EXPECT_LT(last_date, date);
    last_date = date;
  }
  EXPECT_EQ(sum, 2000);
  EXPECT_EQ(blocks, 84);
}
