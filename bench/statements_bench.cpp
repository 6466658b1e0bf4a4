// Time and memory of reading statement files by their size, ordinary ones and hostile
// shapes: the bytes per second must not fall as files grow. memcpy of the same bytes is
// the measure.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

#include "peak_memory.h"
#include "statement_file.h"
#include "tivex.h"

namespace {

const std::string head =
    "\r\n:20:STARTUMSE\r\n:25:10010010/0000012345\r\n:28C:00001/001\r\n"
    ":60F:C261101EUR1000,00\r\n";
const std::string tail = "\r\n:62F:C261130EUR1000,00\r\n-";
const std::string entry =
    "\r\n:61:2611021102DR12,34NDDTKREF+//B123\r\n:86:105?00FOLGELASTSCHRIFT?109248?20EREF+2026-11"
    "-0001?21MREF+M-4711?22CRED+DE98ZZZ09999999999?23SVWZ+Strom November 2026 V\r\nertrag 4711 "
    "?24Kunde 0815?30MARKDEF1100?31DE54100000000000012345?32STADTWERKE NORD?34992";

std::string ordinary(std::size_t size) {
  const std::string statement = head + repeated(entry, 20 * entry.size()) + tail;
  return repeated(statement, size) + "\r\n";
}

// What makes a literal reading of the format quadratic.
std::string bare_line_ends(std::size_t size) {
  return head + entry + repeated("\r\n", size) + tail + "\r\n";
}
std::string question_marks(std::size_t size) {
  return head + entry + repeated("?", size) + tail + "\r\n";
}
std::string subfield_marks(std::size_t size) {
  return head + entry + repeated("?20?10?21", size) + tail + "\r\n";
}
std::string entries_without_type(std::size_t size) {
  return head + repeated("\r\n:61:261102C1", size) + "\r\n";
}
std::string statements_without_type(std::size_t size) {
  return repeated("\r\n:20:A\r\n:61:261102C1", size) + "\r\n";
}
std::string types_behind_all_entries(std::size_t size) {
  return head + repeated("\r\n:61:261102C1", size) + repeated(",", size / 10) + "N\r\n";
}
std::string numbers_without_slash(std::size_t size) {
  return head + repeated("\r\n:28C:1", size) + "\r\n";
}
// Numbers that may stand behind any white space. The last scan of each tag goes
// through all that follows it.
std::string tags_without_number(std::size_t size) {
  return repeated("\r\n:20:A\r\n:60F:\r\n:61:\r\n:28C:\r\n:86:\r\n", size) + "\r\n";
}
std::string numbers_behind_lines(std::size_t size) {
  const std::string lines = repeated("\r\n", 1000);
  return repeated("\r\n:20:A\r\n:28C:" + lines + "1/" + lines + "\r\n:60F:C24" + lines + "01" +
                      lines + "31\r\n:61:" + lines + "240131C1,N" + lines + ":86:" + lines +
                      "166?34" + lines,
                  size) +
         "\r\n";
}
std::string number_behind_blanks(std::size_t size) {
  return head + "\r\n:60F:C24" + repeated(" ", size) + "\r\n";
}
// Dates that are read, with an amount behind the next lines.
std::string balances_without_amount(std::size_t size) {
  return head + repeated("\r\n:60F:C261102", size / 2) + repeated("\r\n", size / 2) + tail + "\r\n";
}
std::string one_field(std::size_t size) {
  return head + entry + "?60" + repeated("a word, ", size) + tail + "\r\n";
}

// What dialects have beside that.
std::string ordinary_words(std::size_t size) {
  const std::string words =
      "\r\n:61:2611021102DR12,34NTRFEREF//B123\r\n/TRCD/01016/\r\n:86:/EREF/2026-11-0001//MARF/M-4"
      "711//CSID/NL98ZZZ09999999999//CNTP/NL11BAN\r\nK0123456789/BANKNL2A/ENERGIE NOORD BV/UTRECHT"
      "///REMI/USTD//Stroo\r\nm november 2026 contract 4711//PURP/CD/OTHR//";
  return repeated(head + repeated(words, 20 * words.size()) + tail, size) + "\r\n";
}
std::string unknown_words(std::size_t size) {
  return head + entry + "\r\n:86:/REMI/" + repeated("/AB/c/REMI/d//", size) + tail + "\r\n";
}
std::string keywords_again(std::size_t size) {
  return head + entry + repeated("?20EREF+a?21KREF+b", size) + tail + "\r\n";
}
std::string information_again(std::size_t size) {
  return head + entry + repeated("\r\n:86:166?20SVWZ+a?21b", size) + tail + "\r\n";
}
std::string dashes(std::size_t size) {
  const std::string blank_lines = repeated("\r\n  ", 400);
  return head + entry + repeated("\r\n-a\r\n-b" + blank_lines, size) + tail + "\r\n";
}
std::string marks_of_entries(std::size_t size) {
  return head + "\r\n:61:261102" + repeated("CDRCRD      ", size / 2) +
         repeated("\r\n:61:261102C D C", size / 2) + tail + "\r\n";
}

using parser_ptr = std::unique_ptr<tivex_stmt_parser_t, decltype(&tivex_stmt_parser_free)>;

// Null when the file cannot be read.
parser_ptr read(const statement_file& file, int format) {
  parser_ptr parser(tivex_stmt_parser_new(), tivex_stmt_parser_free);
  const int read = tivex_stmt_parser_load(parser.get(), format, file.path.c_str());
  return read == 1 ? std::move(parser) : parser_ptr(nullptr, tivex_stmt_parser_free);
}

std::size_t size_of_records(const parser_ptr& parser) {
  std::size_t size = 0;
  const tivex_stmt_t* statement = tivex_stmt_parser_getStatement(parser.get());
  for (; statement != nullptr; statement = statement->next) {
    size += sizeof *statement;
    const tivex_stmt_tx_t* each = statement->first_tx;
    for (; each != nullptr; each = each->next) size += sizeof *each;
  }
  return size;
}

void read_format(benchmark::State& state, int format, std::string (*shape)(std::size_t)) {
  const auto size = static_cast<std::size_t>(state.range(0)) << 20;
  const statement_file file(shape(size));
  {
    // Besides, a virtual machine's host may take far longer to give the memory than it
    // takes to read the file.
    const peak_memory peak;
    const parser_ptr parser = read(file, format);
    state.counters["peak_to_need"] =
        peak.bytes() / static_cast<double>(size_of_records(parser) + size);
  }
  for (auto _ : state) {
    if (!read(file, format)) state.SkipWithError("the file was not read");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}

void read_statements(benchmark::State& state, std::string (*shape)(std::size_t)) {
  read_format(state, TIVEX_FORMAT_MT940, shape);
}

void read_dialects(benchmark::State& state, std::string (*shape)(std::size_t)) {
  read_format(state, TIVEX_FORMAT_MT940_DIALECTS, shape);
}

#define READ_AS(format, shape)            \
  BENCHMARK_CAPTURE(format, shape, shape) \
      ->RangeMultiplier(10)               \
      ->Range(1, 100)                     \
      ->Unit(benchmark::kMillisecond)
#define READ(shape) READ_AS(read_statements, shape)
READ(ordinary);
READ(bare_line_ends);
READ(question_marks);
READ(subfield_marks);
READ(entries_without_type);
READ(statements_without_type);
READ(types_behind_all_entries);
READ(numbers_without_slash);
READ(tags_without_number);
READ(numbers_behind_lines);
READ(number_behind_blanks);
READ(balances_without_amount);
READ(one_field);

#define READ_DIALECT(shape) READ_AS(read_dialects, shape)
READ_DIALECT(ordinary);
READ_DIALECT(ordinary_words);
READ_DIALECT(bare_line_ends);
READ_DIALECT(question_marks);
READ_DIALECT(subfield_marks);
READ_DIALECT(one_field);
READ_DIALECT(unknown_words);
READ_DIALECT(keywords_again);
READ_DIALECT(information_again);
READ_DIALECT(dashes);
READ_DIALECT(marks_of_entries);
READ_DIALECT(entries_without_type);
READ_DIALECT(statements_without_type);

void memcpy_of_statements(benchmark::State& state) {
  const std::string text = ordinary(static_cast<std::size_t>(state.range(0)) << 20);
  std::string copy(text.size(), ' ');
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::memcpy(copy.data(), text.data(), text.size()));
    benchmark::ClobberMemory();
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(memcpy_of_statements)->RangeMultiplier(10)->Range(1, 100)->Unit(benchmark::kMillisecond);

}  // namespace
