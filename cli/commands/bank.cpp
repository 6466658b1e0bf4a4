#include "commands/bank.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "banks/bank_handle.h"
#include "platform/exhausted_memory.h"
#include "platform/exit_status.h"
#include "terminal/diagnostics.h"
#include "terminal/labelled_line.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Example:
  tivex bank DE 10000000

prints

  name            Bundesbank
  postcode        10591
  city            Berlin
  country         DE
  BIC             MARKDEF1100)";

// What is asked for: a country and bank code, an IBAN or a BIC.
struct bank_query {
  std::string country;
  std::string code;
  std::optional<std::string> iban;
  std::optional<std::string> bic;
  bool json = false;
};

struct scheme {
  unsigned flag;
  const char* name;
};

constexpr scheme schemes[] = {{TIVEX_SCHEME_CREDIT_TRANSFER, "credit transfer"},
                              {TIVEX_SCHEME_DEBIT_CORE, "core direct debit"},
                              {TIVEX_SCHEME_DEBIT_B2B, "B2B direct debit"}};

std::vector<std::string> schemes_of(const tivex_bank_info_t& bank) {
  std::vector<std::string> names;
  for (const scheme& each : schemes) {
    if ((bank.flags & each.flag) != 0) names.emplace_back(each.name);
  }
  return names;
}

// The library leaves the country of Swiss addresses empty.
std::string country_of(const tivex_bank_info_t& bank) {
  return *bank.country == '\0' ? "CH" : bank.country;
}

struct named_field {
  const char* label;
  const char* json_key;
  std::string text;
};

// The fields that the bank has, in the order of printing.
std::vector<named_field> fields_of(const tivex_bank_info_t& bank) {
  std::vector<named_field> fields = {{"name", "name", bank.name}};
  if (bank.postcode != nullptr) fields.push_back({"postcode", "postcode", bank.postcode});
  if (bank.city != nullptr) fields.push_back({"city", "city", bank.city});
  fields.push_back({"country", "country", country_of(bank)});
  fields.push_back({"BIC", "bic", bank.bic});
  return fields;
}

void print_text(const tivex_bank_info_t& bank, bool with_schemes) {
  for (const named_field& field : fields_of(bank)) {
    std::puts(labelled_line(field.label, field.text.empty() ? "-" : field.text).c_str());
  }
  if (!with_schemes) return;
  std::string names;
  for (const std::string& name : schemes_of(bank)) names += (names.empty() ? "" : ", ") + name;
  std::puts(labelled_line("schemes", names.empty() ? "-" : names).c_str());
}

void print_json(const tivex_bank_info_t& bank, bool with_schemes) {
  nlohmann::ordered_json object;
  for (const named_field& field : fields_of(bank)) {
    // A bank without a BIC, say, has none rather than an empty one.
    object[field.json_key] =
        field.text.empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(field.text);
  }
  if (with_schemes) object["schemes"] = schemes_of(bank);
  std::puts(object.dump(2).c_str());
}

// What the query names, for messages.
std::string subject(const bank_query& query) {
  if (query.iban) return *query.iban;
  if (query.bic) return *query.bic;
  return query.country + ' ' + query.code;
}

std::string refusal(int result, const bank_query& query) {
  switch (result) {
    case 0:
      return subject(query) + ": there is a directory for AT, CH, DE and LI only";
    case -1:
      return subject(query) + ": the IBAN is invalid";
    case -2:
      return subject(query) + ": not in the directory";
    default:
      end_for_want_of_memory();
  }
}

int look_up(const bank_query& query, tivex_bank_info_t*& found) {
  if (query.bic) return tivex_bic_getBank(query.bic->c_str(), &found);
  if (query.iban) return tivex_iban_getBank(query.iban->c_str(), &found);
  return tivex_bankid_check(query.country.c_str(), query.code.c_str(), &found);
}

int run(const bank_query& query) {
  tivex_bank_info_t* found = nullptr;
  const int result = look_up(query, found);
  const bank_handle bank(found);
  if (result != 1) {
    print_error(refusal(result, query));
    return exit_failure;
  }
  (query.json ? print_json : print_text)(*bank, query.bic.has_value());
  return flush_standard_output() ? exit_success : exit_failure;
}

}  // namespace

void add_bank(CLI::App& program, int& exit_status) {
  CLI::App* const command = program.add_subcommand("bank", "Find the bank behind a code");
  const auto query = std::make_shared<bank_query>();
  CLI::Option* const country =
      command->add_option("COUNTRY", query->country, "AT, CH, DE or LI")->type_name("");
  CLI::Option* const code =
      command->add_option("CODE", query->code, "National bank code")->type_name("");
  CLI::Option* const iban = command->add_option("--iban", query->iban, "IBAN of an account");
  CLI::Option* const bic = command->add_option("--bic", query->bic, "BIC of 8 or 11 characters");
  command->add_flag("--json", query->json, "Print a JSON object");
  country->needs(code);
  code->needs(country);
  iban->excludes(country, code, bic);
  bic->excludes(country, code);
  command->footer(example);
  command->callback([&exit_status, command, query] {
    if (command->count("CODE") + command->count("--iban") + command->count("--bic") == 0) {
      throw CLI::RequiredError("COUNTRY CODE, --iban or --bic");
    }
    exit_status = run(*query);
  });
}

}  // namespace tivex_program
