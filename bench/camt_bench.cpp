// Reading CAMT documents with all their records, beside libraries that only read the XML:
// pugixml in place and libxml2's reader. Hostile shapes must not take more time for a byte
// as they grow.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <cstring>
#include <memory>
#include <string>

#ifdef TIVEX_BENCH_PUGIXML
#include <pugixml.hpp>
#endif
#ifdef TIVEX_BENCH_LIBXML2
#include <libxml/xmlreader.h>
#endif

#include "statement_file.h"
#include "tivex.h"

namespace {

const std::string head = R"(<?xml version="1.0" encoding="UTF-8"?>
<Document xmlns="urn:iso:std:iso:20022:tech:xsd:camt.053.001.08">
  <BkToCstmrStmt>
    <GrpHdr><MsgId>53D2026-11-23</MsgId><CreDtTm>2026-11-23T18:00:00+01:00</CreDtTm></GrpHdr>
)";
const std::string tail = "  </BkToCstmrStmt>\n</Document>\n";
const std::string statement_head = R"(    <Stmt>
      <Id>STMT-2026-11-23</Id>
      <ElctrncSeqNb>228</ElctrncSeqNb>
      <CreDtTm>2026-11-23T18:00:00+01:00</CreDtTm>
      <Acct><Id><IBAN>DE54100000000000012345</IBAN></Id><Ccy>EUR</Ccy></Acct>
      <Bal>
        <Tp><CdOrPrtry><Cd>OPBD</Cd></CdOrPrtry></Tp>
        <Amt Ccy="EUR">1000.00</Amt>
        <CdtDbtInd>CRDT</CdtDbtInd>
        <Dt><Dt>2026-11-23</Dt></Dt>
      </Bal>
)";
const std::string statement_tail = "    </Stmt>\n";
const std::string entry = R"(      <Ntry>
        <NtryRef>4711</NtryRef>
        <Amt Ccy="EUR">12.34</Amt>
        <CdtDbtInd>DBIT</CdtDbtInd>
        <Sts>
          <Cd>BOOK</Cd>
        </Sts>
        <BookgDt>
          <Dt>2026-11-23</Dt>
        </BookgDt>
        <ValDt>
          <Dt>2026-11-23</Dt>
        </ValDt>
        <AcctSvcrRef>2026112300000000001</AcctSvcrRef>
        <BkTxCd>
          <Domn>
            <Cd>PMNT</Cd>
            <Fmly>
              <Cd>RDDT</Cd>
              <SubFmlyCd>ESDD</SubFmlyCd>
            </Fmly>
          </Domn>
          <Prtry>
            <Cd>NDDT+105+9248+992</Cd>
            <Issr>DK</Issr>
          </Prtry>
        </BkTxCd>
        <NtryDtls>
          <TxDtls>
            <Refs>
              <EndToEndId>2026-11-0001</EndToEndId>
              <MndtId>M-4711</MndtId>
            </Refs>
            <Amt Ccy="EUR">12.34</Amt>
            <CdtDbtInd>DBIT</CdtDbtInd>
            <RltdPties>
              <Dbtr>
                <Pty>
                  <Nm>Nordlicht GmbH</Nm>
                </Pty>
              </Dbtr>
              <DbtrAcct>
                <Id>
                  <IBAN>DE54100000000000012345</IBAN>
                </Id>
              </DbtrAcct>
              <Cdtr>
                <Pty>
                  <Nm>STADTWERKE NORD</Nm>
                  <Id>
                    <PrvtId>
                      <Othr>
                        <Id>DE98ZZZ09999999999</Id>
                      </Othr>
                    </PrvtId>
                  </Id>
                </Pty>
              </Cdtr>
              <CdtrAcct>
                <Id>
                  <IBAN>AT611904300234573201</IBAN>
                </Id>
              </CdtrAcct>
            </RltdPties>
            <RltdAgts>
              <CdtrAgt>
                <FinInstnId>
                  <BICFI>MARKDEF1100</BICFI>
                </FinInstnId>
              </CdtrAgt>
            </RltdAgts>
            <RmtInf>
              <Ustrd>Strom November 2026 Vertrag 4711 Kunde 0815 &amp; Abschlag f&#252;r Dezember</Ustrd>
            </RmtInf>
          </TxDtls>
        </NtryDtls>
        <AddtlNtryInf>FOLGELASTSCHRIFT</AddtlNtryInf>
      </Ntry>
)";

std::string document(const std::string& statements) { return head + statements + tail; }

std::string indented(std::size_t size) {
  const std::string statement =
      statement_head + repeated(entry, 20 * entry.size()) + statement_tail;
  return document(repeated(statement, size));
}

// In one line.
std::string compact(std::size_t size) {
  std::string whole = indented(size * 2);
  std::string text;
  text.reserve(whole.size());
  bool behind_line_end = false;
  for (const char c : whole) {
    if (c == '\n') behind_line_end = true;
    if (c == '<' || (c != ' ' && c != '\n')) behind_line_end = false;
    if (!behind_line_end) text += c;
  }
  return text;
}

std::string in_entry(const std::string& content) {
  return document("<Stmt><Id>S</Id><Ntry><Amt Ccy=\"EUR\">1</Amt>" + content + "</Ntry></Stmt>");
}
std::string in_transaction(const std::string& content) {
  return in_entry("<NtryDtls><TxDtls>" + content + "</TxDtls></NtryDtls>");
}

std::string many_attributes(std::size_t size) {
  std::string text = "<Id";
  for (std::size_t number = 0; text.size() < size; ++number) {
    text += " attribute" + std::to_string(number) + "=''";
  }
  return document("<Stmt>" + text + "/></Stmt>");
}
std::string many_transactions(std::size_t size) {
  return in_entry("<NtryDtls>" + repeated("<TxDtls><Amt Ccy=\"EUR\">1</Amt></TxDtls>", size) +
                  "</NtryDtls>");
}
std::string many_remittances(std::size_t size) {
  return in_transaction("<RmtInf>" +
                        repeated("<Ustrd>a</Ustrd><Strd><CdtrRefInf><Ref>b</Ref>"
                                 "</CdtrRefInf></Strd>",
                                 size) +
                        "</RmtInf>");
}
std::string many_pieces(std::size_t size) {
  return in_entry("<AddtlNtryInf>" + repeated("a<!---->b<![CDATA[c]]>&amp;\r\n", size) +
                  "</AddtlNtryInf>");
}
std::string empty_entries(std::size_t size) {
  return document("<Stmt>" + repeated("<Ntry/>", size / 8) + repeated("<Othr/>", size / 8) +
                  repeated("\n", size * 3 / 4) + "</Stmt>");
}
std::string deep_nestings(std::size_t size) {
  std::string nesting;
  for (int depth = 0; depth < 250; ++depth) nesting += "<a>";
  for (int depth = 0; depth < 250; ++depth) nesting += "</a>";
  return document(repeated(nesting, size));
}
std::string long_name(std::size_t size) {
  const std::string name(size / 2, 'a');
  return document("<" + name + "></" + name + ">");
}

using text_shape = std::string (*)(std::size_t);

// A program reads one file: what the allocator keeps of earlier ones would spare some readers
// the system's pages.
void give_back_memory(benchmark::State& state) {
  state.PauseTiming();
  malloc_trim(0);
  state.ResumeTiming();
}

void read_camt(benchmark::State& state, text_shape shape) {
  const std::string text = shape(static_cast<std::size_t>(state.range(0)) << 20);
  const statement_file file(text);
  for (auto _ : state) {
    give_back_memory(state);
    tivex_stmt_parser_t* const parser = tivex_stmt_parser_new();
    if (tivex_stmt_parser_load(parser, TIVEX_FORMAT_CAMT, file.path.c_str()) != 1) {
      state.SkipWithError(tivex_stmt_parser_getError(parser));
    }
    tivex_stmt_parser_free(parser);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

#define READ(shape)                          \
  BENCHMARK_CAPTURE(read_camt, shape, shape) \
      ->RangeMultiplier(10)                  \
      ->Range(1, 100)                        \
      ->Unit(benchmark::kMillisecond)
READ(indented);
READ(compact);
READ(many_attributes);
READ(many_transactions);
READ(many_remittances);
READ(many_pieces);
READ(empty_entries);
READ(deep_nestings);
READ(long_name);

#ifdef TIVEX_BENCH_PUGIXML
// The text is in memory already; nothing is taken from the tree.
void read_with_pugixml(benchmark::State& state, text_shape shape) {
  const std::string text = shape(static_cast<std::size_t>(state.range(0)) << 20);
  std::unique_ptr<char[]> copy(new char[text.size()]);
  for (auto _ : state) {
    state.PauseTiming();
    std::memcpy(copy.get(), text.data(), text.size());
    state.ResumeTiming();
    give_back_memory(state);
    pugi::xml_document tree;
    if (!tree.load_buffer_inplace(copy.get(), text.size())) state.SkipWithError("not read");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(read_with_pugixml, indented, indented)
    ->RangeMultiplier(10)
    ->Range(1, 100)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(read_with_pugixml, compact, compact)
    ->RangeMultiplier(10)
    ->Range(1, 100)
    ->Unit(benchmark::kMillisecond);
#endif

#ifdef TIVEX_BENCH_LIBXML2
void read_with_libxml2(benchmark::State& state, text_shape shape) {
  const std::string text = shape(static_cast<std::size_t>(state.range(0)) << 20);
  for (auto _ : state) {
    give_back_memory(state);
    xmlTextReader* const reader = xmlReaderForMemory(text.data(), static_cast<int>(text.size()),
                                                     nullptr, nullptr, XML_PARSE_HUGE);
    int result = 1;
    while (result == 1) result = xmlTextReaderRead(reader);
    if (result != 0) state.SkipWithError("not read");
    xmlFreeTextReader(reader);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK_CAPTURE(read_with_libxml2, indented, indented)
    ->RangeMultiplier(10)
    ->Range(1, 100)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(read_with_libxml2, compact, compact)
    ->RangeMultiplier(10)
    ->Range(1, 100)
    ->Unit(benchmark::kMillisecond);
#endif

}  // namespace
