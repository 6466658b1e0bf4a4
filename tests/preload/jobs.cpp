#include "jobs.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "library.h"
#include "statements/statement_dump.h"

namespace {

constexpr const char* iban = "DE89370400440532013000";

using pairs = std::vector<tivex_keyvalue_t>;

std::string taken(char* text) {
  const std::string copy = text != nullptr ? text : "";
  if (text != nullptr) std::memset(text, 0, copy.size());
  std::free(text);
  return copy;
}

std::string error_of(const message_ptr& msg) {
  const char* const error = tivex_getError(msg.get());
  return error != nullptr ? error : "";
}

std::string told(int result, const message_ptr& msg) {
  return result == 1 ? "1" : std::to_string(result) + ' ' + error_of(msg);
}

// The document without what differs from one to the next, or why there is none.
std::string told(char* document, const message_ptr& msg) {
  if (document == nullptr) return "none " + error_of(msg);
  std::string text = taken(document);
  for (const std::string start : {"<CreDtTm>", "SEPA-"}) {
    for (std::size_t at = 0; (at = text.find(start, at)) != text.npos;) {
      at += start.size();
      text.erase(at, text.find_first_not_of("0123456789-:TZ", at) - at);
    }
  }
  return text;
}

message_ptr with_header(int type, const char* rulebook = "DE-3.7") {
  call(tivex_init, TIVEX_OPTION_RULEBOOK, rulebook);
  message_ptr msg(call(tivex_new, type));
  call(tivex_setIBAN, msg.get(), "NL91ABNA0417164300");
  call(tivex_setBIC, msg.get(), "abnanl2a");
  call(tivex_setName, msg.get(), "Quendolina Alt");
  call(tivex_setCreditorIdentifier, msg.get(), "DE98ZZZ09999999999");
  return msg;
}

// Everything that a transaction can say; the required values stand in front.
pairs transaction(int type, const std::string& rulebook, const char* bic) {
  const bool debit = type == TIVEX_DIRECT_DEBIT;
  pairs list = {{"iban", "AT611904300234573201"}, {"amount", "12.50"}};
  if (debit) list.push_back({"seq", "RCUR"});
  list.insert(list.end(), {{"bic", bic}, {"name", "Ottokar Neu"}, {"date", "2026-12-01"}});
  const bool newest = rulebook == "DE-26.11";
  if (newest) {
    list.insert(list.end(), {{"cref", "RF18539007547034"}, {"instrId", "I1"}});
    list.insert(list.end(), {{"ultmtDbtr", "Ottilie Alt"}, {"ultmtCdtr", "Quirin Neu"}});
  } else {
    list.push_back({"ref", "Invoice 0234573201"});
  }
  list.insert(list.end(), {{"id", "E1"}, {"addrCC", "AT"}});
  if (rulebook != "DE-3.7") {
    list.insert(list.end(), {{"addrLine1", "Am Tor 1"}, {"addrLine2", "1010 Wien"}});
  }
  if (newest || rulebook == "DE-3.7") {
    for (const char* const part :
         {"addrTown", "addrDept", "addrSubDept", "addrStreet", "addrFloor", "addrRoom", "addrBldg",
          "addrLoc", "addrDstrct", "addrCtrySub", "addrNum", "addrPoBox", "addrCode"}) {
      list.push_back({part, "P"});
    }
  }
  if (!debit) list.push_back({"purp", "SALA"});
  if (debit) {
    list.insert(list.end(), {{"mref", "M1"}, {"mdate", "2024-01-01"}, {"old_mref", "M0"}});
    list.push_back({"old_iban", "NO9386011117947"});
  }
  return list;
}

int add(const message_ptr& msg, pairs list) {
  list.push_back({nullptr, nullptr});
  return call(tivex_add, msg.get(), list.data());
}

message_ptr with_transactions(int type, const char* rulebook, const pairs& list, int count) {
  message_ptr msg = with_header(type, rulebook);
  while (count-- > 0) add(msg, list);
  return msg;
}

// As it is written in the prescribed form, and in the strict mode.
std::string both_documents(const message_ptr& msg) {
  std::string texts;
  for (unsigned char strict = 0; strict <= 1; ++strict) {
    call(tivex_setStrict, msg.get(), strict);
    texts += told(call(tivex_toXML, msg.get()), msg) + '\n';
  }
  return texts;
}

// What is written when these properties of the third transaction are lost: the
// strict mode names one of them, or one that its schema requires.
void tell_losses(job& added, int type, const char* rulebook, const pairs& list,
                 const std::vector<std::string>& lost) {
  const message_ptr msg = with_transactions(type, rulebook, list, 2);
  pairs rest;
  for (const tivex_keyvalue_t& property : list) {
    if (std::find(lost.begin(), lost.end(), property.key) == lost.end()) rest.push_back(property);
  }
  if (add(msg, rest) != 1) return;  // then the disturbed call refuses it as well
  const std::string prescribed = told(call(tivex_toXML, msg.get()), msg) + '\n';
  const bool always_strict = std::string(rulebook) == "DE-26.11";
  for (const std::string& key : lost) {
    const std::string strict = "none transaction 3: " + key + " lost (out of memory)\n";
    added.losses.push_back((always_strict ? strict : prescribed) + strict);
  }
  const std::string texts = both_documents(msg);
  if (texts.compare(prescribed.size(), 5, "none ") == 0) added.losses.push_back(texts);
}

job add_job(int type, const char* rulebook, const char* bic,
            const std::vector<std::string>& more_errors = {}) {
  job added;
  added.name = std::string("add ") + std::to_string(type) + ' ' + rulebook + ' ' + bic;
  const pairs list = transaction(type, rulebook, bic);
  added.run = [=] {
    const message_ptr msg = with_transactions(type, rulebook, list, 2);
    pairs ended = list;
    ended.push_back({nullptr, nullptr});
    const int result = disturbed(tivex_add, msg.get(), ended.data());
    outcome seen = {told(result, msg), ""};
    if (result != 1 && add(msg, list) != 1) seen.after = "not added: " + error_of(msg);
    seen.after += both_documents(msg);
    return seen;
  };
  added.failures = {"0 Out of memory", "0 IBAN missing"};
  added.failures.insert(added.failures.end(), more_errors.begin(), more_errors.end());
  const std::size_t first_optional = type == TIVEX_DIRECT_DEBIT ? 3 : 2;
  for (std::size_t first = first_optional; first < list.size(); ++first) {
    std::vector<std::string> lost = {list[first].key};
    tell_losses(added, type, rulebook, list, lost);
    for (std::size_t next = first + 1; next < list.size(); ++next) lost.push_back(list[next].key);
    tell_losses(added, type, rulebook, list, lost);
  }
  return added;
}

job document_job(int type, const char* rulebook, unsigned char strict, const pairs& list,
                 int count) {
  const std::string writer = type == TIVEX_DIRECT_DEBIT ? "ddi" : "cti";
  const auto run = [=] {
    const message_ptr msg = with_transactions(type, rulebook, list, count);
    call(tivex_setStrict, msg.get(), strict);
    const std::string during = told(disturbed(tivex_toXML, msg.get()), msg);
    return outcome{during, told(call(tivex_toXML, msg.get()), msg)};
  };
  return {"toXML " + writer + ' ' + rulebook + (strict != 0 ? " strict" : ""),
          run,
          {"none ", "none malloc() failed", "none " + writer + "_toXML: strdup() failed",
           "none Out of memory"}};
}

template <class value>
job setter_job(const std::string& name, int (*setter)(tivex_t*, value), value given,
               std::vector<std::string> failures = {}) {
  const auto run = [=] {
    const message_ptr msg = with_transactions(
        TIVEX_DIRECT_DEBIT, "DE-3.7", transaction(TIVEX_DIRECT_DEBIT, "DE-3.7", "BKAUATWW"), 1);
    const std::string during = told(disturbed(setter, msg.get(), given), msg);
    const std::string after = told(call(setter, msg.get(), given), msg);
    return outcome{during, after + told(call(tivex_toXML, msg.get()), msg)};
  };
  return {name, run, std::move(failures)};
}

// A call that needs no memory.
template <class... values>
job plain_job(const std::string& name, int (*function)(values...),
              std::type_identity_t<values>... arguments) {
  return {name, [=] {
            const std::string during = std::to_string(disturbed(function, arguments...));
            return outcome{during, std::to_string(call(function, arguments...))};
          }};
}

// A call that fills a text, and needs no memory either.
job text_job(const std::string& name, int (*give)(char*)) {
  return {name, [=] {
            char texts[2][40] = {};
            const int during = disturbed(give, texts[0]);
            const int after = call(give, texts[1]);
            return outcome{std::to_string(during) + texts[0], std::to_string(after) + texts[1]};
          }};
}

// A call that makes a block for the host.
job lookup_job(const std::string& name, int (*lookup)(tivex_bank_info_t**)) {
  const auto told_bank = [](int result, tivex_bank_info_t* info, tivex_bank_info_t* untouched) {
    std::string text = std::to_string(result);
    if (result != 1) return text + (info == untouched ? "" : " but touched");
    for (const char* const part : {info->name, info->postcode, info->city, info->bic}) {
      if (part != nullptr) text += std::string("|") + part;
    }
    std::free(info);
    return text;
  };
  const auto run = [=] {
    tivex_bank_info_t none = {};
    tivex_bank_info_t* info = &none;
    const int during = disturbed(lookup, &info);
    outcome seen = {told_bank(during, info, &none), ""};
    const int after = call(lookup, &info);
    seen.after = told_bank(after, info, &none);
    return seen;
  };
  return {name, run, {"-3"}};
}

int by_bank_code(tivex_bank_info_t** info) { return tivex_bankid_check("DE", "37040044", info); }
int by_iban(tivex_bank_info_t** info) { return tivex_iban_getBank(iban, info); }
int by_bic(tivex_bank_info_t** info) { return tivex_bic_getBank("cobadeff", info); }

int convert(char* text) {
  unsigned char status = 0;
  return tivex_iban_convert("DE", "532013000", "37040044", text, &status);
}
int bic_of_iban(char* text) { return tivex_iban_getBIC(iban, text); }
int successor(char* text) { return tivex_bankid_getSuccessor("25050299", text); }

template <class holder, class function, class... values>
job new_job(const std::string& name, function* create, values... arguments) {
  return {name,
          [=] {
            const bool during = holder(disturbed(create, arguments...)) != nullptr;
            const bool after = holder(call(create, arguments...)) != nullptr;
            return outcome{during ? "made" : "none", after ? "made" : "none"};
          },
          {"none"}};
}

outcome load_statements() {
  const auto told_statements = [](const parser_ptr& parser, int result) {
    const tivex_stmt_t* const first = call(tivex_stmt_parser_getStatement, parser.get());
    return std::to_string(result) + ' ' + tivex_stmt_parser_getError(parser.get()) + dump_of(first);
  };
  const parser_ptr parser(call(tivex_stmt_parser_new));
  const int during =
      disturbed(tivex_stmt_parser_load, parser.get(), TIVEX_FORMAT_MT940, TIVEX_STATEMENT);
  const parser_ptr next(call(tivex_stmt_parser_new));
  const int after = call(tivex_stmt_parser_load, next.get(), TIVEX_FORMAT_MT940, TIVEX_STATEMENT);
  return {told_statements(parser, during), told_statements(next, after)};
}

// Functions that only release or settle something.
outcome release_all() {
  message_ptr msg = with_transactions(TIVEX_CREDIT_TRANSFER, "DE-3.7",
                                      transaction(TIVEX_CREDIT_TRANSFER, "DE-3.7", "BKAUATWW"), 2);
  parser_ptr parser(call(tivex_stmt_parser_new));
  call(tivex_stmt_parser_load, parser.get(), TIVEX_FORMAT_MT940, TIVEX_STATEMENT);
  const bool error = disturbed(tivex_getError, msg.get()) != nullptr;
  disturbed(tivex_free, msg.release());
  disturbed(tivex_stmt_parser_free, parser.release());
  disturbed(tivex_cleanup);
  return {error ? "an error" : "", ""};
}

}  // namespace

std::vector<job> all_jobs() {
  std::vector<job> jobs = {
      new_job<message_ptr>("new", tivex_new, TIVEX_CREDIT_TRANSFER),
      new_job<parser_ptr>("parser_new", tivex_stmt_parser_new),
      setter_job("setIBAN", tivex_setIBAN, iban, {"0 strdup() failed"}),
      setter_job("setIBAN refused", tivex_setIBAN, "DE88370400440532013000"),
      setter_job("setBIC", tivex_setBIC, "cobadeff", {"0 tivex_setBIC: strdup() failed"}),
      setter_job("setBIC refused", tivex_setBIC, "COBADEFFX"),
      setter_job("setName", tivex_setName, "Quendolina Neu", {"0 tivex_setName: strdup() failed"}),
      setter_job("setName refused", tivex_setName, "Quendolina <"),
      setter_job("setCreditorIdentifier", tivex_setCreditorIdentifier, "DE98ABC09999999999",
                 {"0 strdup() failed"}),
      setter_job("setDate", tivex_setDate, "2026-12-02", {"0 strdup() failed"}),
      setter_job("setMessageId", tivex_setMessageId, "RUN 7", {"0 strdup() failed"}),
      setter_job("setDDType", tivex_setDDType, TIVEX_DD_B2B),
      setter_job("setCTType refused", tivex_setCTType, TIVEX_CT_INSTANT),
      setter_job("setCategoryPurpose", tivex_setCategoryPurpose, "SALA"),
      setter_job<unsigned char>("setBatchBooking", tivex_setBatchBooking, 0),
      setter_job<unsigned char>("setStrict", tivex_setStrict, 1),
      plain_job("init", tivex_init, TIVEX_OPTION_RULEBOOK, "AT-6"),
      plain_job("account_check", tivex_account_check, "9290701", 0),
      plain_job("account_check2", tivex_account_check2, "43001500", "13051172", 0x52),
      plain_job("bankid_getMethod", tivex_bankid_getMethod, "37040044"),
      text_job("bankid_getSuccessor", successor),
      text_job("iban_convert", convert),
      text_job("iban_getBIC", bic_of_iban),
      lookup_job("bankid_check", by_bank_code),
      lookup_job("iban_getBank", by_iban),
      lookup_job("bic_getBank", by_bic),
      {"release", release_all},
      {"parser_load",
       load_statements,
       {"0 ", std::string("0 Error while allocating 16 bytes: ") + std::strerror(ENOMEM),
        "0 Error while allocating 16 bytes: Cannot allocate memory",
        "0 Failed to allocate " TIVEX_STATEMENT_SIZE " bytes"}},
      add_job(TIVEX_CREDIT_TRANSFER, "DE-3.7", "BKAUATWW"),
      add_job(TIVEX_CREDIT_TRANSFER, "DE-3.5", "BKAUATWW"),
      add_job(TIVEX_CREDIT_TRANSFER, "DE-26.11", "BKAUATWW"),
      add_job(TIVEX_DIRECT_DEBIT, "DE-26.11", "BKAUATWW"),
      add_job(TIVEX_CREDIT_TRANSFER, "DE-2.6", "BKAUATWW", {"0 BIC missing"}),
      add_job(TIVEX_DIRECT_DEBIT, "DE-3.7", "UBSWCHZH",
              {"0 Structured address required for BICs outside EEA (at least town and country)"}),
      add_job(TIVEX_DIRECT_DEBIT, "DE-3.5", "UBSWCHZH",
              {"0 Address required for BICs outside EEA"}),
  };
  for (const char* const each :
       {"NL91ABNA0417164300", "NL91ABNA0417164301", "GB29NWBK60161331926819", "IT60", iban,
        "DE97999999990000012345", "DE59370400440532031000", "de89370400440532013000"}) {
    jobs.push_back(plain_job(std::string("iban_check ") + each, tivex_iban_check, each));
  }
  for (const int type : {TIVEX_CREDIT_TRANSFER, TIVEX_DIRECT_DEBIT}) {
    for (const char* const rulebook : {"DE-2.6", "DE-2.7", "DE-2.8", "DE-2.9", "DE-3.0", "DE-3.1",
                                       "DE-3.5", "DE-3.7", "DE-26.11", "AT-6", "NL-6"}) {
      const pairs list = transaction(type, rulebook, "BKAUATWW");
      for (unsigned char strict = 0; strict <= 1; ++strict) {
        jobs.push_back(document_job(type, rulebook, strict, list, 3));
      }
    }
    // Escaped, the addresses are longer than the writer expects.
    static const std::string wide(70, '&');
    pairs list = transaction(type, "DE-3.7", "BKAUATWW");
    for (const char* const key :
         {"name", "ref", "addrDept", "addrRoom", "addrFloor", "addrStreet"}) {
      list.push_back({key, wide.c_str()});
    }
    jobs.push_back(document_job(type, "DE-3.7", 0, list, 40));
  }
  return jobs;
}
