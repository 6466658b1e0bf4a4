#include "commands/bank.h"

#include <tivex.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "banks/bank_handle.h"
#include "banks/given_up_bank.h"
#include "commands/asked_items.h"
#include "files/grouped_code.h"
#include "platform/exhausted_memory.h"
#include "platform/exit_status.h"
#include "terminal/diagnostics.h"
#include "terminal/json_object.h"
#include "terminal/labelled_line.h"
#include "terminal/standard_output.h"

namespace tivex_program {
namespace {

constexpr const char* example = R"(Examples:
  tivex bank DE 10000000

prints

  name            Bundesbank
  postcode        10591
  city            Berlin
  country         DE
  BIC             MARKDEF1100

  tivex bank --json --input customers.csv --column iban --iban -

prints an object a line with "query", "name", "postcode", "city", "country",
"bic", "deleted" (whether the bank code is marked for deletion), "successor" (the
one that has taken over) and "fault"; of banks by their BIC "schemes" in place of
both.)";

// What is asked for: a country and bank code, an IBAN or a BIC.
struct bank_query {
  std::string country;
  std::optional<std::string> code;
  std::optional<std::string> iban;
  std::optional<std::string> bic;
  asked_items asked;  // what the latter three name, and an input
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
const char* country_of(const tivex_bank_info_t& bank) {
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

// Whether the bank code asked for is given up; that of a BIC is not known.
given_up_bank given_up(const bank_query& query, std::string_view asked) {
  if (query.iban) return given_up_bank_of(german_bank_code(asked));
  return query.country == "DE" ? given_up_bank_of(asked) : given_up_bank();
}

void print_text(const tivex_bank_info_t& bank, bool with_schemes, const given_up_bank& given_up) {
  for (const named_field& field : fields_of(bank)) {
    std::puts(labelled_line(field.label, field.text.empty() ? "-" : field.text).c_str());
  }
  if (given_up.deleted) std::puts(labelled_line("deleted", "marked for deletion").c_str());
  if (!given_up.successor.empty()) {
    std::puts(labelled_line("successor", given_up.successor).c_str());
  }
  if (!with_schemes) return;
  std::string names;
  for (const std::string& name : schemes_of(bank)) names += (names.empty() ? "" : ", ") + name;
  std::puts(labelled_line("schemes", names.empty() ? "-" : names).c_str());
}

void add_to(json_object& object, const given_up_bank& given_up) {
  object.add_flag("deleted", given_up.deleted);
  object.add_text_or_null("successor", given_up.successor);
}

void print_json(const tivex_bank_info_t& bank, bool with_schemes, const given_up_bank& given_up) {
  json_object object;
  for (const named_field& field : fields_of(bank)) {
    // A bank without a BIC, say, has none rather than an empty one.
    object.add_text_or_null(field.json_key, field.text);
  }
  if (with_schemes) {
    object.add_texts("schemes", schemes_of(bank));
  } else {
    add_to(object, given_up);
  }
  std::puts(object.lines().c_str());
}

// Why the library found no bank, null when it found one.
const char* refusal(int result) {
  switch (result) {
    case 1:
      return nullptr;
    case 0:
      return "there is a directory for AT, CH, DE and LI only";
    case -1:
      return "the IBAN is invalid";
    case -2:
      return "not in the directory";
    default:
      end_for_want_of_memory();
  }
}

// Finds the bank behind what is asked for. Returns why there is none, null when there is.
const char* look_up(const bank_query& query, std::string_view asked, bank_handle& bank) {
  if (const char* const fault = nul_fault(asked)) return fault;
  tivex_bank_info_t* found = nullptr;
  const int result = query.bic    ? tivex_bic_getBank(asked.data(), &found)
                     : query.iban ? tivex_iban_getBank(asked.data(), &found)
                                  : tivex_bankid_check(query.country.c_str(), asked.data(), &found);
  bank.reset(found);
  return refusal(result);
}

int print_one(const bank_query& query) {
  bank_handle bank;
  const std::string asked = joined_groups(query.asked.arguments.front());
  if (const char* const fault = look_up(query, asked, bank)) {
    print_error((query.code ? query.country + ' ' : "") + asked + ": " + fault);
    return exit_failure;
  }
  (query.asked.json ? print_json : print_text)(*bank, query.bic.has_value(),
                                               given_up(query, asked));
  return flush_standard_output() ? exit_success : exit_failure;
}

const char* or_empty(const char* text) { return text == nullptr ? "" : text; }

void append_json(std::string& line, std::string_view asked, const tivex_bank_info_t* bank,
                 bool with_schemes, const given_up_bank& given_up, const char* fault) {
  json_object object;
  object.add_text("query", asked);
  object.add_text_or_null("name", bank == nullptr ? "" : bank->name);
  object.add_text_or_null("postcode", bank == nullptr ? "" : or_empty(bank->postcode));
  object.add_text_or_null("city", bank == nullptr ? "" : or_empty(bank->city));
  object.add_text_or_null("country", bank == nullptr ? "" : country_of(*bank));
  object.add_text_or_null("bic", bank == nullptr ? "" : bank->bic);
  if (with_schemes) {
    if (bank == nullptr) {
      object.add_null("schemes");
    } else {
      object.add_texts("schemes", schemes_of(*bank));
    }
  }
  if (!with_schemes) add_to(object, given_up);
  object.add_text_or_null("fault", or_empty(fault));
  line += object.line();
}

// Appends what the directory has of the bank, separated by commas.
void append_text(std::string& line, const tivex_bank_info_t& bank, const given_up_bank& given_up) {
  std::string place = or_empty(bank.postcode);
  const std::string_view city = or_empty(bank.city);
  if (!place.empty() && !city.empty()) place += ' ';
  place += city;
  bool first = true;
  for (const std::string_view part :
       {std::string_view(bank.name), std::string_view(place), std::string_view(country_of(bank)),
        std::string_view(bank.bic)}) {
    if (part.empty()) continue;
    if (!first) line += ", ";
    first = false;
    line += part;
  }
  if (!given_up.successor.empty()) {
    line += " (successor " + given_up.successor + ")";
  } else if (given_up.deleted) {
    line += " (marked for deletion)";
  }
}

int print_many(const bank_query& query) {
  return answer_each(query.asked, [&](std::string_view asked, std::string& line) {
    bank_handle bank;
    const char* const fault = look_up(query, asked, bank);
    const given_up_bank bank_code = fault == nullptr ? given_up(query, asked) : given_up_bank();
    if (query.asked.json) {
      append_json(line, asked, bank.get(), query.bic.has_value(), bank_code, fault);
      return fault == nullptr;
    }
    append_subject(line, asked);
    if (fault == nullptr) {
      append_text(line, *bank, bank_code);
    } else {
      line += fault;
    }
    return fault == nullptr;
  });
}

}  // namespace

void add_bank(CLI::App& program, int& exit_status) {
  CLI::App* const command = program.add_subcommand("bank", "Find the bank behind a code");
  const auto query = std::make_shared<bank_query>();
  CLI::Option* const country =
      command->add_option("COUNTRY", query->country, "AT, CH, DE or LI")->type_name("");
  CLI::Option* const code =
      command->add_option("CODE", query->code, "National bank code; - for the input")
          ->type_name("");
  CLI::Option* const iban =
      command->add_option("--iban", query->iban, "IBAN of an account; - as with CODE");
  CLI::Option* const bic =
      command->add_option("--bic", query->bic, "BIC of 8 or 11 characters; - as with CODE");
  add_asking_options(*command, query->asked);
  code->needs(country);
  iban->excludes(country, code, bic);
  bic->excludes(country, code);
  command->footer(example);
  command->callback([&exit_status, command, query] {
    const bool by_country = command->count("COUNTRY") > 0;
    if (!by_country && !query->iban && !query->bic) {
      throw CLI::RequiredError("COUNTRY CODE, --iban or --bic");
    }
    if (by_country && !query->code && !query->asked.input) {
      throw CLI::RequiresError("COUNTRY", "CODE");
    }
    for (const auto& each : {query->code, query->iban, query->bic}) {
      if (each) query->asked.arguments.push_back(*each);
    }
    check_asked(*command, query->asked, "CODE");
    exit_status = query->asked.many() ? print_many(*query) : print_one(*query);
  });
}

}  // namespace tivex_program
