// Runs one job a fixed number of times. Only what happens within `counted_job` is
// counted: scripts/count_instructions asks for that.

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "messages.h"
#include "tivex.h"

namespace {

std::string whole_file(const char* path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The first column of a file's rows.
std::vector<std::string> first_column(const char* path) {
  std::ifstream lines(path);
  std::vector<std::string> keys;
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty() && line[0] != '#') keys.push_back(line.substr(0, line.find('\t')));
  }
  return keys;
}

// Nothing of a job's result is looked at here: tests do that.
volatile int result;

struct job {
  const char* name;
  void (*prepare)();
  void (*run)();
};

std::vector<std::string> keys;
message_ptr message;
std::string path;

void no_preparation() {}

void take_ibans() { keys = first_column(TIVEX_TEST_DATA "/ibans.tsv"); }
void check_ibans() {
  for (int round = 0; round < 20; ++round) {
    for (const std::string& iban : keys) result = tivex_iban_check(iban.c_str());
  }
}

void check_accounts() {
  for (const char* const account : {"9290701", "539290858", "1501824", "0009290701"}) {
    for (int method = 0; method < 256; ++method) {
      result = tivex_account_check2(account, "37040044", method);
    }
  }
}

void take_bank_codes() { keys = first_column(TIVEX_EDITION "/german_banks.tsv"); }
void find_banks() {
  for (const std::string& code : keys) {
    tivex_bank_info_t* info = nullptr;
    result = tivex_bankid_check("DE", code.c_str(), &info);
    std::free(info);
  }
}
void convert_accounts() {
  char iban[35];
  for (const std::string& code : keys) {
    result = tivex_iban_convert("DE", "1382930134", code.c_str(), iban, nullptr);
  }
}

void take_bics() { keys = first_column(TIVEX_EDITION "/bics.tsv"); }
void find_bics() {
  for (const std::string& bic : keys) result = tivex_bic_getBank(bic.c_str(), nullptr);
}

constexpr int transactions = 1000;
message_ptr filled(int type) { return fill(type, transactions, make_dates(10)); }

void add_transfers() { filled(TIVEX_CREDIT_TRANSFER).reset(); }
void add_debits() { filled(TIVEX_DIRECT_DEBIT).reset(); }
void take_transfers() { message = filled(TIVEX_CREDIT_TRANSFER); }
void take_debits() { message = filled(TIVEX_DIRECT_DEBIT); }
void write_message() { std::free(tivex_toXML(message.get())); }
void write_strictly() {
  tivex_setStrict(message.get(), 1);
  write_message();
}

void take_file(const std::string& text) {
  char name[] = "/tmp/tivex_counted_XXXXXX";
  close(mkstemp(name));
  path = name;
  std::ofstream(path, std::ios::binary) << text;
}
void take_statements() {
  const std::string statement = whole_file(TIVEX_EXAMPLES "/statement.sta");
  std::string statements;
  for (int round = 0; round < 200; ++round) statements += statement;
  take_file(statements);
}
// Its statements many times.
void take_camt() {
  const std::string document = whole_file(TIVEX_TEST_DATA "/statements/camt_053.xml");
  const std::size_t first = document.find("<Stmt>");
  const std::size_t behind = document.rfind("</Stmt>") + std::string_view("</Stmt>").size();
  std::string statements;
  for (int round = 0; round < 200; ++round) statements += document.substr(first, behind - first);
  take_file(document.substr(0, first) + statements + document.substr(behind));
}
template <int format>
void read_statements() {
  tivex_stmt_parser_t* const parser = tivex_stmt_parser_new();
  result = tivex_stmt_parser_load(parser, format, path.c_str());
  tivex_stmt_parser_free(parser);
}

constexpr job jobs[] = {
    {"check_ibans", take_ibans, check_ibans},
    {"check_accounts", no_preparation, check_accounts},
    {"find_banks", take_bank_codes, find_banks},
    {"find_bics", take_bics, find_bics},
    {"convert_accounts", take_bank_codes, convert_accounts},
    {"add_transfers", no_preparation, add_transfers},
    {"add_debits", no_preparation, add_debits},
    {"write_transfers", take_transfers, write_message},
    {"write_transfers_strictly", take_transfers, write_strictly},
    {"write_debits", take_debits, write_message},
    {"read_statements", take_statements, read_statements<TIVEX_FORMAT_MT940>},
    {"read_dialects", take_statements, read_statements<TIVEX_FORMAT_MT940_DIALECTS>},
    {"read_camt", take_camt, read_statements<TIVEX_FORMAT_CAMT>},
};

}  // namespace

extern "C" [[gnu::noinline]] void counted_job(void (*run)()) { run(); }

// With a job's name it runs that; without one it names them all.
int main(int count, char** arguments) {
  for (const job& candidate : jobs) {
    if (count < 2) {
      std::puts(candidate.name);
    } else if (std::string_view(arguments[1]) == candidate.name) {
      candidate.prepare();
      counted_job(candidate.run);
      message.reset();
      if (!path.empty()) std::remove(path.c_str());
      return 0;
    }
  }
  return count < 2 ? 0 : 2;
}
