#include "schemas/random_message.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

// A value in place of the usual one; none: left out.
struct deviation {
  std::string key;
  std::optional<std::string> value;
};

const std::vector<deviation> header_deviations = {
    {"setIBAN", std::nullopt},
    {"setBIC", std::nullopt},
    {"setName", std::nullopt},
    {"setName", "Müller & Söhne"},
    {"setName", "A<B>]]>\"C"},
    {"setDate", std::nullopt},
    {"setDate", "2026-02-29"},
    {"setDate", "2028-02-29"},
    {"setDate", "0000-01-01"},
    {"setDate", "2026-13-01"},
    {"setDate", " 026-12-01"},
    {"setMessageId", std::nullopt},
    {"setMessageId", std::string(31, 'm')},
    {"setMessageId", std::string(32, 'm')},
    {"setMessageId", std::string(33, 'm')},
    {"setMessageId", " / : "},
    {"setMessageId", "/M"},
    {"setMessageId", "M/"},
    {"setMessageId", "M//1"},
    {"setMessageId", "  "},
    {"setName", "  "},
    {"setCreditorIdentifier", "DE98A|B09999999999"},
    {"setCreditorIdentifier", "DE98A//09999999999"},
    {"setCreditorIdentifier", "DE98#*!09999999999"},
    {"setCreditorIdentifier", "DE98+-|09999999999"},
    {"setCreditorIdentifier", "DE98A A09999999999"},
    {"setCreditorIdentifier", "DE98<a>09999999999"},
    {"setCreditorIdentifier", "DE98&a;09999999999"},
    {"setCreditorIdentifier",
     "DE98\x01\xC3\xA4"
     "09999999999"},
    {"setCreditorIdentifier", "DE98Z\xC3Z09999999999"},
    {"setCreditorIdentifier", "1D95ZZZ09999999999"},
    {"setCreditorIdentifier", "DE36ZZZ"},
    {"setCreditorIdentifier", "DE36ZZZ0"},
    {"setCreditorIdentifier", "DE51ZZZ1111111111111111111111111111"},
    {"setDDType", "1"},
    {"setDDType", "2"},
    {"setBatchBooking", "0"},
    {"setCategoryPurpose", "SALA"},
};

const std::vector<std::string> odd_texts = {"a\tb\nc",
                                            "a\x01",
                                            "\x1F",
                                            "\x7F",
                                            "\xC2\x85",
                                            "Orléans",
                                            "\xC3",
                                            "a\x80",
                                            "\xC0\xAF",
                                            "\xE0\x80\xAF",
                                            "\xED\xA0\x80",
                                            "\xEF\xBF\xBE",
                                            "<&>]]>",
                                            "\xEF\xBF\xBD",
                                            "\xF0\x9F\x8F\xA0",
                                            "\xF4\x90\x80\x80",
                                            "\xF0\x8F\xBF\xBF",
                                            "\xF8\x88\x80\x80\x80",
                                            "\xE2\x82",
                                            " "};

const std::vector<deviation> transaction_deviations = {
    {"name", std::nullopt},
    {"name", "É"},
    {"name", "  "},
    {"iban", "CH9300762011623852957"},
    {"iban", "GB29NWBK60161331926819"},
    {"name", "Ä & Ö <x> ]]>"},
    {"bic", std::nullopt},
    {"bic", "UBSWCHZH80A"},
    {"ref", std::nullopt},
    {"ref", ""},
    {"ref", " "},
    {"amount", "999999999.99"},
    {"amount", "1000000000"},
    {"amount", "999999999999999.98"},
    {"amount", "10000000000000000"},
    {"amount", "12345678901234567"},
    {"amount", "1e17"},
    {"amount", "1e300"},
    {"amount", "0.01"},
    {"date", std::nullopt},
    {"date", "2026-02-30"},
    {"date", "2000-02-29"},
    {"date", "1900-02-29"},
    {"date", "2026-04-31"},
    {"date", "2026-00-01"},
    {"date", "2026-12-00"},
    {"date", "0001-01-01"},
    {"date", "+026-12-01"},
    {"date", "2026-1-012"},
    {"date", "1.12.2026 "},
    {"date", "<b>2026</b"},
    {"id", std::nullopt},
    {"id", " +?/-:().,' "},
    {"id", "A|B;C"},
    {"id", "A|B"},
    {"id", "/E/1"},
    {"id", "E/1/"},
    {"id", "E//1"},
    {"id", "  "},
    {"id", " /1/ "},
    {"id", "A<B"},
    {"id", "A>B"},
    {"id", "A]]>B"},
    {"id", "A<!--x-->B"},
    {"id", "10 €"},
    {"purp", "sala"},
    {"purp", "SECU"},
    {"purp", "ABCD"},
    {"purp", "    "},
    {"purp", "a<b&"},
    {"purp", "]]>x"},
    {"purp", "&lt;"},
    {"purp", "a\x02zz"},
    {"purp", "\xF0\x9F\x8F\xA0"},
    {"purp", "abc\xC3"},
    {"mref", std::nullopt},
    {"mref", "M 1"},
    {"mref", "M<1>"},
    {"mref", "/M"},
    {"mref", "M//1"},
    {"mref", " "},
    {"mdate", std::nullopt},
    {"mdate", "2025-06-31"},
    {"mdate", "01.06.2025"},
    {"old_mref", "O{1}"},
    {"old_mref", "O<1"},
    {"old_mref", "O/"},
    {"old_iban", "AT611904300234573201"},
    {"smnda", "1"},
    {"addrCC", std::nullopt},
    {"addrTown", std::nullopt},
    {"addrStreet", std::nullopt},
    {"addrLine1", std::nullopt},
    {"addrLine2", "Postfach"},
    {"addrLine2", " "},
};

const std::vector<deviation> further_deviations = {
    {"cref", "RF18539007547034"}, {"cref", "RF9854"},
    {"ultmtDbtr", "Ä & Ö"},       {"ultmtDbtr", " "},
    {"ultmtCdtr", "C"},           {"ultmtCdtr", "  "},
    {"instrId", "I/1 "},          {"instrId", "/I"},
    {"instrId", "I//1"},          {"instrId", " "},
    {"addrTown", std::nullopt},   {"addrCC", std::nullopt},
};

class message_maker {
 public:
  message_maker(std::mt19937& random, int type, const std::string& rulebook)
      : random_(random), plan_{type, rulebook, rulebook, {}, {}} {}

  random_message make() {
    if (one_in(5)) plan_.made_under = pick(all_rulebooks);
    plan_.header = {{"setIBAN", pick(ibans)},
                    {"setBIC", "MARKDEF1100"},
                    {"setName", "Nordlicht GmbH"},
                    {"setDate", "2026-12-01"},
                    {"setMessageId", "M 1"}};
    if (debit()) plan_.header.emplace_back("setCreditorIdentifier", "DE98ZZZ09999999999");
    if (!debit() && further() && one_in(2)) plan_.header.emplace_back("setCTType", "1");
    const bool many_dates = one_in(16);
    const std::size_t count = many_dates ? 8 + one_of(4) : 1 + one_of(3);
    for (std::size_t number = 1; number <= count; ++number) {
      plan_.transactions.push_back(usual_transaction(number));
      if (many_dates)
        set(plan_.transactions.back(), "date", "2027-01-" + std::to_string(number + 9));
    }
    if (one_in(40)) plan_.transactions.clear();
    if (!one_in(4)) deviate();
    while (one_in(4)) deviate();
    return std::move(plan_);
  }

 private:
  std::size_t one_of(std::size_t count) { return random_() % count; }
  bool one_in(std::size_t count) { return one_of(count) == 0; }
  template <class element>
  const element& pick(const std::vector<element>& all) {
    return all[one_of(all.size())];
  }
  bool debit() const { return plan_.type == TIVEX_DIRECT_DEBIT; }
  bool further() const { return plan_.made_under == "DE-26.11"; }
  bool structured() const { return plan_.made_under == "DE-3.7" || further(); }

  static void set(std::vector<property>& values, const std::string& key,
                  const std::optional<std::string>& value) {
    std::erase_if(values, [&](const property& held) { return held.first == key; });
    if (value) values.emplace_back(key, *value);
  }

  std::vector<property> usual_transaction(std::size_t number) {
    std::vector<property> tx = {{"iban", pick(ibans)},
                                {"amount", std::to_string(number) + ".17"},
                                {"name", "Eva Alt"},
                                {"bic", "BKAUATWW"},
                                {"ref", "Invoice 7"}};
    if (further() && one_in(2)) {
      tx.back() = {"cref", "RF18539007547034"};
      tx.emplace_back("ultmtDbtr", "Adam & Co");
      tx.emplace_back("ultmtCdtr", "Haus");
      tx.emplace_back("instrId", "I " + std::to_string(number));
    }
    if (one_in(2)) tx.emplace_back("date", "2026-12-0" + std::to_string(1 + one_of(3)));
    if (one_in(2)) tx.emplace_back("id", "E-" + std::to_string(number));
    if (one_in(2)) tx.emplace_back("addrCC", "AT");
    if (structured()) {
      if (tx.back().first == "addrCC") tx.emplace_back("addrTown", "Wien");
      if (one_in(2)) tx.emplace_back("addrStreet", "Ring 1");
    }
    if ((!structured() || further()) && one_in(2)) {
      tx.emplace_back("addrLine1", "Ring 1");
    }
    if (!debit()) {
      if (one_in(2)) tx.emplace_back("purp", "SALA");
      return tx;
    }
    tx.emplace_back("seq", pick(sequences));
    tx.emplace_back("mref", "M-7");
    tx.emplace_back("mdate", "2025-06-30");
    return tx;
  }

  void deviate() {
    if (plan_.transactions.empty() || one_in(4)) {
      const deviation& odd = pick(header_deviations);
      return set(plan_.header, odd.key, odd.value);
    }
    std::vector<property>& tx = plan_.transactions[one_of(plan_.transactions.size())];
    if (structured() && one_in(6)) {
      set(tx, "addrCC", "AT");
      set(tx, "addrTown", "Wien");
      return set(tx, pick(structured_keys), pick(odd_texts));
    }
    const deviation& odd =
        pick(further() && one_in(4) ? further_deviations : transaction_deviations);
    if (odd.key == "cref") set(tx, "ref", std::nullopt);
    const bool of_debits = odd.key.find('m') == 0 || odd.key.find("old") == 0 || odd.key == "smnda";
    if (of_debits != debit() && (of_debits || odd.key == "purp")) return;
    set(tx, odd.key, odd.value);
  }

  inline static const std::vector<std::string> ibans = {
      "AT611904300234573201", "NL91ABNA0417164300", "NO9386011117947", "DE54100000000000012345"};
  inline static const std::vector<std::string> sequences = {"FRST", "RCUR", "OOFF", "FNAL"};
  inline static const std::vector<std::string> structured_keys = {
      "addrDept", "addrNum", "addrPoBox", "addrTown", "addrLoc", "addrCtrySub"};

  std::mt19937& random_;
  random_message plan_;
};

}  // namespace

random_message make_random_message(std::mt19937& random, int type, const std::string& rulebook) {
  return message_maker(random, type, rulebook).make();
}

made_message make(const random_message& plan) {
  made_message made{new_message(plan.type, plan.made_under), {}};
  for (const auto& [function, value] : plan.header) call(made.msg, function, value.c_str());
  for (const auto& properties : plan.transactions) {
    pairs list;
    for (const auto& [key, value] : properties) list.push_back({key.c_str(), value.c_str()});
    if (add_alone(made.msg, list) == 1) made.transactions.push_back(properties);
  }
  EXPECT_EQ(call(nullptr, "rulebook", plan.written_under.c_str()), 1);
  return made;
}
