// Time of whole programs, from start to end: the tivex program over a large CSV file
// beside Python's own modules over the same one, and what loading the library costs.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "tivex.h"

namespace {

constexpr int rows = 500000;

// Rows as a payroll has them, the same ones in every run.
class random_rows {
 public:
  random_rows() {
    std::ifstream lines(TIVEX_EDITION "/german_banks.tsv");
    for (std::string line; std::getline(lines, line);) {
      if (!line.starts_with('#')) bank_codes_.push_back(line.substr(0, line.find('\t')));
    }
    bank_codes_.erase(bank_codes_.begin());  // the columns' names
  }

  std::string next(int number) {
    const std::string id = std::to_string(100000 + number);
    std::string row = iban();
    row += ',' + one_of(first_names);
    row += ' ' + one_of(last_names);
    const std::size_t cents = below(500000) + 1;
    const std::size_t day = below(10) + 1;
    char text[32];
    std::snprintf(text, sizeof text, ",%zu.%02zu,", cents / 100, cents % 100);
    row += text;
    // Texts with a delimiter stand in quotes.
    row += below(2) == 0 ? "\"Gehalt November 2026, Personalnummer " + id + '"'
                         : "Fahrtkosten Oktober " + id;
    std::snprintf(text, sizeof text, ",2026-12-%02zu,", day);
    row += ",SALA-2026-11-" + id + text;
    return row + one_of(places) + '\n';
  }

 private:
  static constexpr const char* first_names[] = {"Jürgen", "Sabine", "Özlem",      "Piotr",
                                                "Käthe",  "Änne",   "Friederike", "Theo"};
  static constexpr const char* last_names[] = {"Petersen", "Nußbaum", "Vogt",     "von Thalheim",
                                               "Groß",     "Krüger",  "Albrecht", "de Vries"};
  // With their countries; not everyone's is known.
  static constexpr const char* places[] = {"Göttingen,DE", "Wien,AT",    ",",
                                           "Erding,DE",    "Utrecht,NL", "Freiburg im Breisgau,DE"};

  std::size_t below(std::size_t limit) { return random_() % limit; }

  template <class list>
  std::string one_of(const list& values) {
    return values[below(std::size(values))];
  }

  std::string digits(int count) {
    std::string text;
    while (count-- > 0) text += static_cast<char>('0' + below(10));
    return text;
  }

  std::string iban() {
    for (;;) {
      const std::size_t country = below(10);
      const std::string iban = country == 0 ? with_check_digits("AT", digits(16))
                               : country == 1
                                   ? with_check_digits("NL", "ABNA" + digits(10))
                                   : with_check_digits("DE", one_of(bank_codes_) + digits(10));
      if (tivex_iban_check(iban.c_str()) == 1) return iban;
    }
  }

  static std::string with_check_digits(const std::string& country, const std::string& account) {
    unsigned remainder = 0;
    for (const char c : account + country + "00") {
      const bool letter = 'A' <= c;
      const auto value = static_cast<unsigned>(letter ? c - 'A' + 10 : c - '0');
      remainder = (remainder * (letter ? 100 : 10) + value) % 97;
    }
    const unsigned check = 98 - remainder;
    return country + (check < 10 ? "0" : "") + std::to_string(check) + account;
  }

  std::mt19937 random_{1};
  std::vector<std::string> bank_codes_;
};

// A folder with the CSV file, gone at the end of the program.
class files {
 public:
  files() {
    std::string name = (std::filesystem::temp_directory_path() / "tivex_bench_XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    folder_ = name;
    std::ofstream file(csv());
    file << "iban,name,amount,ref,id,date,addrTown,addrCC\n";
    random_rows random;
    for (int row = 0; row < rows; ++row) file << random.next(row);
  }
  ~files() { std::filesystem::remove_all(folder_); }
  files(const files&) = delete;
  files& operator=(const files&) = delete;

  std::string csv() const { return folder_ / "payroll.csv"; }
  std::string document() const { return folder_ / "payroll.xml"; }

 private:
  std::filesystem::path folder_;
};

const files& payroll() {
  static const files made;
  return made;
}

// Runs a program with nothing on its streams; returns whether it ended well.
bool run(std::vector<std::string> arguments) {
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t streams;
  posix_spawn_file_actions_init(&streams);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addopen(&streams, stream, "/dev/null", O_RDWR, 0);
  }
  pid_t child = 0;
  int status = -1;
  const bool started =
      posix_spawn(&child, pointers[0], &streams, nullptr, pointers.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&streams);
  return started && waitpid(child, &status, 0) == child && status == 0;
}

void run_each(benchmark::State& state, const std::vector<std::string>& arguments) {
  for (auto _ : state) {
    if (!run(arguments)) state.SkipWithError("the program failed");
  }
}

// Each run writes a new file: freeing an old one takes time, too.
void write_document(benchmark::State& state, const std::vector<std::string>& arguments) {
  const std::string document = payroll().document();
  for (auto _ : state) {
    if (!run(arguments)) state.SkipWithError("the program failed");
    state.PauseTiming();
    std::error_code missing;
    state.counters["document_bytes"] =
        static_cast<double>(std::filesystem::file_size(document, missing));
    std::filesystem::remove(document, missing);
    state.ResumeTiming();
  }
}

void credit_transfer_program(benchmark::State& state) {
  write_document(state, {TIVEX_PROGRAM, "credit-transfer", "--rulebook", "DE-3.7", "--name",
                         "Beispiel GmbH", "--iban", "DE89370400440532013000", "--bic",
                         "COBADEFFXXX", "-o", payroll().document(), payroll().csv()});
}
BENCHMARK(credit_transfer_program)->UseRealTime()->Unit(benchmark::kMillisecond);

void credit_transfer_by_python(benchmark::State& state) {
  write_document(state, {TIVEX_BENCH_PYTHON, TIVEX_BENCH_PYTHON_DOCUMENT, payroll().csv(),
                         payroll().document()});
}
BENCHMARK(credit_transfer_by_python)->UseRealTime()->Unit(benchmark::kMillisecond);

void program_with_one_check(benchmark::State& state) { run_each(state, {TIVEX_BENCH_ONE_CHECK}); }
BENCHMARK(program_with_one_check)->UseRealTime()->Unit(benchmark::kMicrosecond);

void empty_program(benchmark::State& state) { run_each(state, {TIVEX_BENCH_EMPTY_PROGRAM}); }
BENCHMARK(empty_program)->UseRealTime()->Unit(benchmark::kMicrosecond);

}  // namespace
