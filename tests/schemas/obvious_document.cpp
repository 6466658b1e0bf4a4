#include "schemas/obvious_document.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

using values = std::map<std::string, std::string>;

std::string element(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name.substr(0, name.find(' ')) + ">\n";
}

// None without a value, as are the others below.
std::string given(const std::string& name, const std::string& content) {
  return content.empty() ? "" : element(name, content);
}

std::string escaped(const std::string& name, const std::string& text) {
  std::string content;
  for (const char c : text) {
    content += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
  }
  return given(name, content);
}

std::string text_of(const tivex::owned_text& held) { return held ? held.c_str() : ""; }

std::string euro(double amount) {
  char text[400];
  std::snprintf(text, sizeof text, "%.2f", amount);
  return text;
}

std::string account(const std::string& name, const std::string& iban) {
  return element(name, element("Id", given("IBAN", iban)));
}

std::string bank(const std::string& name, const std::string& bic) {
  const std::string unknown = element("Othr", element("Id", "NOTPROVIDED"));
  return element(name, element("FinInstnId", bic.empty() ? unknown : element("BICFI", bic)));
}

std::string address(values& tx) {
  static const std::pair<const char*, const char*> parts[] = {
      {"Dept", "addrDept"},           {"StrtNm", "addrStreet"}, {"BldgNb", "addrNum"},
      {"PstBx", "addrPoBox"},         {"TwnNm", "addrTown"},    {"TwnLctnNm", "addrLoc"},
      {"CtrySubDvsn", "addrCtrySub"}, {"Ctry", "addrCC"},       {"AdrLine", "addrLine1"},
      {"AdrLine", "addrLine2"}};
  std::string content;
  for (const auto& [name, key] : parts) content += escaped(name, tx[key]);
  return given("PstlAdr", content);
}

std::string remittance(values& tx) {
  const std::string type =
      element("Tp", element("CdOrPrtry", element("Cd", "SCOR")) + element("Issr", "ISO"));
  const std::string reference = element("CdtrRefInf", type + given("Ref", tx["cref"]));
  return given("RmtInf",
               tx["cref"].empty() ? escaped("Ustrd", tx["ref"]) : element("Strd", reference));
}

std::string mandate(values& tx) {
  std::string former = given("OrgnlMndtId", tx["old_mref"]);
  if (tx["smnda"] == "1") {
    former += element("OrgnlDbtrAcct", element("Id", element("Othr", element("Id", "SMNDA"))));
  } else if (!tx["old_iban"].empty()) {
    former += account("OrgnlDbtrAcct", tx["old_iban"]);
  }
  if (!former.empty()) former = element("AmdmntInd", "true") + element("AmdmntInfDtls", former);
  return element("DrctDbtTx", element("MndtRltdInf", given("MndtId", tx["mref"]) +
                                                         given("DtOfSgntr", tx["mdate"]) + former));
}

std::string transaction(bool debit, values& tx, const std::string& amount) {
  const std::string id =
      element("PmtId", given("InstrId", tx["instrId"]) +
                           element("EndToEndId", tx["id"].empty() ? "NOTPROVIDED" : tx["id"]));
  const std::string sum = element("InstdAmt Ccy=\"EUR\"", amount);
  const std::string party = escaped("Nm", tx["name"]) + address(tx);
  const std::string debtor = given("UltmtDbtr", escaped("Nm", tx["ultmtDbtr"]));
  const std::string creditor = given("UltmtCdtr", escaped("Nm", tx["ultmtCdtr"]));
  if (debit) {
    return element("DrctDbtTxInf", id + sum + mandate(tx) + creditor + bank("DbtrAgt", tx["bic"]) +
                                       element("Dbtr", party) + account("DbtrAcct", tx["iban"]) +
                                       debtor + remittance(tx));
  }
  return element("CdtTrfTxInf", id + element("Amt", sum) + debtor +
                                    (tx["bic"].empty() ? "" : bank("CdtrAgt", tx["bic"])) +
                                    element("Cdtr", party) + account("CdtrAcct", tx["iban"]) +
                                    creditor + given("Purp", given("Cd", tx["purp"])) +
                                    remittance(tx));
}

}  // namespace

std::string obvious_document(const made_message& made) {
  const tivex_t& msg = *made.msg;
  const bool debit = msg.type == TIVEX_DIRECT_DEBIT;
  const std::string name = escaped("Nm", text_of(msg.name));
  double total = 0;
  std::string blocks;
  for (const auto& properties : made.transactions) {
    values tx(properties.begin(), properties.end());
    std::ranges::transform(tx["bic"], tx["bic"].begin(), [](char c) { return std::toupper(c); });
    std::ranges::transform(tx["seq"], tx["seq"].begin(), [](char c) { return std::toupper(c); });
    const double cents = std::strtod(tx["amount"].c_str(), nullptr);
    const std::string amount = euro(cents);
    total += cents;
    const std::string date = tx["date"].empty() ? text_of(msg.date) : tx["date"];
    std::string type = element("SvcLvl", element("Cd", "SEPA"));
    if (debit) {
      type += element("LclInstrm",
                      element("Cd", msg.local_instrument == TIVEX_DD_B2B ? "B2B" : "CORE")) +
              element("SeqTp", tx["seq"]);
    } else if (msg.transfer_type == TIVEX_CT_INSTANT) {
      type += element("LclInstrm", element("Cd", "INST"));
    }
    type += given("CtgyPurp", given("Cd", msg.category_purpose));
    const std::string own = debit ? "Cdtr" : "Dbtr";
    const std::string scheme = element("Othr", given("Id", text_of(msg.creditor_id)) +
                                                   element("SchmeNm", element("Prtry", "SEPA")));
    std::string block =
        element("PmtInfId", text_of(msg.message_id) + "-P" +
                                std::to_string(&properties - made.transactions.data() + 1)) +
        element("PmtMtd", debit ? "DD" : "TRF") +
        element("BtchBookg", msg.batch_booking != 0 ? "true" : "false") + element("NbOfTxs", "1") +
        element("CtrlSum", amount) + element("PmtTpInf", type) +
        (debit ? element("ReqdColltnDt", date) : element("ReqdExctnDt", element("Dt", date))) +
        element(own, name) + account(own + "Acct", text_of(msg.iban)) +
        bank(own + "Agt", text_of(msg.bic)) + element("ChrgBr", "SLEV");
    if (debit) block += element("CdtrSchmeId", element("Id", element("PrvtId", scheme)));
    blocks += element("PmtInf", block + transaction(debit, tx, amount));
  }
  const std::string header = element("MsgId", text_of(msg.message_id)) +
                             element("CreDtTm", "2026-11-23T12:00:00Z") +
                             element("NbOfTxs", std::to_string(made.transactions.size())) +
                             element("CtrlSum", euro(total)) + element("InitgPty", name);
  const std::string version = debit ? "pain.008.001.08" : "pain.001.001.09";
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" +
         element("Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:" + version + "\"",
                 element(debit ? "CstmrDrctDbtInitn" : "CstmrCdtTrfInitn",
                         element("GrpHdr", header) + blocks));
}
