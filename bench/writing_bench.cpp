// A document written beside another library's writer of XML, and the memory that it
// takes to write one.

#include "messages.h"
#include "peak_memory.h"
#ifdef TIVEX_BENCH_LIBXML2
#include <libxml/xmlwriter.h>
#endif

namespace {

constexpr int many_transactions = 500000;
constexpr int many_dates = 1000;

void write_document(benchmark::State& state) {
  const std::vector<std::string> dates = make_dates(many_dates);
  const std::size_t before = bytes_in_use();
  const peak_memory peak;
  const message_ptr msg = fill(TIVEX_CREDIT_TRANSFER, many_transactions, dates);
  const std::size_t records = bytes_in_use() - before;
  const std::size_t need = records + document_length(msg);
  state.counters["peak_to_need"] = peak.bytes() / static_cast<double>(need);
  for (auto _ : state) std::free(tivex_toXML(msg.get()));
  report_each(state, many_transactions);
}
BENCHMARK(write_document)->Unit(benchmark::kMillisecond);

#ifdef TIVEX_BENCH_LIBXML2

// Writes elements as the other library's users do, indented with tabs.
class peer_writer {
 public:
  peer_writer() {
    xmlTextWriterSetIndent(writer_, 1);
    xmlTextWriterSetIndentString(writer_, text("\t"));
    xmlTextWriterStartDocument(writer_, nullptr, "UTF-8", nullptr);
  }
  ~peer_writer() {
    xmlFreeTextWriter(writer_);
    xmlBufferFree(buffer_);
  }
  peer_writer(const peer_writer&) = delete;
  peer_writer& operator=(const peer_writer&) = delete;

  template <class content_function>
  void element(const char* name, content_function content) {
    xmlTextWriterStartElement(writer_, text(name));
    content();
    xmlTextWriterEndElement(writer_);
  }
  void value(const char* name, const char* content) {
    xmlTextWriterWriteElement(writer_, text(name), text(content));
  }
  void content(const char* content) { xmlTextWriterWriteString(writer_, text(content)); }
  void attribute(const char* name, const char* content) {
    xmlTextWriterWriteAttribute(writer_, text(name), text(content));
  }

  std::size_t length() {
    xmlTextWriterEndDocument(writer_);
    return static_cast<std::size_t>(xmlBufferLength(buffer_));
  }

 private:
  static const xmlChar* text(const char* bytes) { return reinterpret_cast<const xmlChar*>(bytes); }

  xmlBufferPtr buffer_ = xmlBufferCreate();
  xmlTextWriterPtr writer_ = xmlNewTextWriterMemory(buffer_, 0);
};

void write_account(peer_writer& out, const char* name) {
  out.element(name, [&] { out.element("Id", [&] { out.value("IBAN", "NL91ABNA0417164300"); }); });
}

void write_header(peer_writer& out, int transactions) {
  out.element("GrpHdr", [&] {
    out.value("MsgId", "SEPA-20261123120000-0000001");
    out.value("CreDtTm", "2026-11-23T12:00:00Z");
    out.value("NbOfTxs", std::to_string(transactions).c_str());
    out.value("CtrlSum", "1240075000.00");
    out.element("InitgPty", [&] { out.value("Nm", "Nordlicht"); });
  });
}

void write_payment_header(peer_writer& out, const std::string& date) {
  out.value("PmtInfId", "SEPA-20261123120000-0000001-P1");
  out.value("PmtMtd", "TRF");
  out.value("BtchBookg", "true");
  out.value("NbOfTxs", "500");
  out.value("CtrlSum", "1240075.00");
  out.element("PmtTpInf", [&] { out.element("SvcLvl", [&] { out.value("Cd", "SEPA"); }); });
  out.value("ReqdExctnDt", date.c_str());
  out.element("Dbtr", [&] { out.value("Nm", "Nordlicht"); });
  write_account(out, "DbtrAcct");
  out.element("DbtrAgt",
              [&] { out.element("FinInstnId", [&] { out.value("BICFI", "ABNANL2A"); }); });
  out.value("ChrgBr", "SLEV");
}

void write_transaction(peer_writer& out) {
  out.element("CdtTrfTxInf", [&] {
    out.element("PmtId", [&] { out.value("EndToEndId", "NOTPROVIDED"); });
    out.element("Amt", [&] {
      out.element("InstdAmt", [&] {
        out.attribute("Ccy", "EUR");
        out.content("2480.15");
      });
    });
    out.element("Cdtr", [&] {
      out.value("Nm", "Jutta Mertens");
      out.element("PstlAdr", [&] {
        out.value("TwnNm", "Amsterdam");
        out.value("Ctry", "NL");
      });
    });
    write_account(out, "CdtrAcct");
    out.element("RmtInf", [&] { out.value("Ustrd", "Invoice of November 2026"); });
  });
}

void write_document_with_libxml2(benchmark::State& state) {
  const std::vector<std::string> dates = make_dates(many_dates);
  for (auto _ : state) {
    peer_writer out;
    out.element("Document", [&] {
      out.attribute("xmlns", "urn:iso:std:iso:20022:tech:xsd:pain.001.001.09");
      out.element("CstmrCdtTrfInitn", [&] {
        write_header(out, many_transactions);
        for (const std::string& date : dates) {
          out.element("PmtInf", [&] {
            write_payment_header(out, date);
            for (int left = many_transactions / many_dates; left > 0; --left) {
              write_transaction(out);
            }
          });
        }
      });
    });
    benchmark::DoNotOptimize(out.length());
  }
  report_each(state, many_transactions);
}
BENCHMARK(write_document_with_libxml2)->Unit(benchmark::kMillisecond);

#endif

}  // namespace
