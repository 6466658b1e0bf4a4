#include "payments/payment_report.h"

#include <tivex.h>

#include "payments/amount_cents.h"
#include "terminal/diagnostics.h"

namespace tivex_program {
namespace {

constexpr std::string_view style = R"(
@page { size: A4 portrait; margin: 15mm }
body { font: 10pt sans-serif; color: #000; background: #fff; margin: 2em }
table { border-collapse: collapse; width: 100%; margin: 0 0 1.5em }
th, td { border-bottom: 1px solid #bbb; padding: 2px 6px; text-align: left; vertical-align: top;
  overflow-wrap: anywhere }
thead { display: table-header-group }
tr { break-inside: avoid }
.sum { text-align: right; white-space: nowrap }
.sign { display: flex; gap: 3em; margin-top: 5em; break-inside: avoid }
.sign div { flex: 1; border-top: 1px solid #000; padding-top: 4px }
@media print { body { margin: 0 } }
)";

// The text as a page shows it; nothing of it is markup.
std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : printable(text)) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      case '"':
        result += "&quot;";
        break;
      case '\'':
        result += "&#39;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

void add_cell(std::string& html, std::string_view text, std::string_view kind = "") {
  html.append("<td").append(kind).append(">").append(escaped(text)).append("</td>");
}

constexpr std::string_view sum_cell = " class=\"sum\"";

// In groups of four, as people compare them.
std::string grouped(std::string_view iban) {
  std::string text;
  for (std::size_t i = 0; i < iban.size(); ++i) {
    if (i > 0 && i % 4 == 0) text += ' ';
    text += iban[i];
  }
  return text;
}

// 1234567.50 is easier read as 1 234 567.50.
std::string grouped_euros(std::int64_t cents) {
  std::string text = euro_text(cents);
  for (std::size_t at = text.size() - 3; at > 3;) text.insert(at -= 3, "\u00A0");
  return text;
}

void add_fact(std::string& html, std::string_view label, std::string_view value) {
  html.append("<tr><th>").append(escaped(label)).append("</th>");
  add_cell(html, value);
  html += "</tr>\n";
}

std::string heading(const report_facts& facts) {
  const bool collects = facts.header.message_type == TIVEX_DIRECT_DEBIT;
  std::string html = "<h1>";
  html += collects ? "Direct debits" : "Credit transfers";
  html += "</h1>\n<table>\n";
  add_fact(html, collects ? "Creditor" : "Debtor", given_value(facts.header, "--name"));
  add_fact(html, "IBAN", grouped(own_iban(facts.header)));
  if (collects) add_fact(html, "Creditor identifier", given_value(facts.header, "--creditor-id"));
  add_fact(html, "Payments", std::to_string(facts.summary.transactions));
  add_fact(html, "Sum", facts.summary.sum + " EUR");
  add_fact(html, "Table", facts.input);
  add_fact(html, "Document", facts.output.empty() ? "not in a file" : facts.output);
  add_fact(html, "Message", facts.summary.message + " (" + facts.summary.rulebook + ")");
  return html + "</table>\n";
}

std::string table_of_days(const date_sums& sums) {
  std::string html =
      "<h2>Sums by date</h2>\n<table>\n<thead><tr><th>Date</th><th class=\"sum\">Payments</th>"
      "<th class=\"sum\">EUR</th></tr></thead>\n";
  for (const auto& [day, sum] : sums) {
    html += "<tr>";
    add_cell(html, day);
    add_cell(html, std::to_string(sum.payments), sum_cell);
    add_cell(html, grouped_euros(sum.cents), sum_cell);
    html += "</tr>\n";
  }
  return html + "</table>\n";
}

std::string line_text(const warning_group& group) {
  std::string text;
  for (const std::size_t line : group.lines) {
    text.append(text.empty() ? "" : ", ").append(std::to_string(line));
  }
  const std::size_t others = group.count - group.lines.size();
  if (!group.lines.empty() && others > 0) text += " and " + std::to_string(others) + " more";
  return text;
}

std::string list_of_warnings(const payment_notes& notes) {
  if (notes.warnings() == 0) return "<p>No warnings.</p>\n";
  std::string html =
      "<h2>Warnings</h2>\n<table>\n<thead><tr><th>Line</th><th>Value</th>"
      "<th>Warning</th></tr></thead>\n";
  for (const warning_group& group : notes.groups()) {
    html += "<tr>";
    add_cell(html, line_text(group));
    add_cell(html, group.what.column.empty() ? group.what.key : group.what.column);
    add_cell(html, group.what.text);
    html += "</tr>\n";
  }
  html += "</table>\n";
  const std::string others = notes.left_out();
  if (!others.empty()) html += "<p>" + escaped(others) + "</p>\n";
  return html;
}

constexpr std::string_view signatures =
    "<div class=\"sign\"><div>Place, date</div><div>Signature</div><div>Signature</div></div>\n";

}  // namespace

void report_rows::add(const report_row& row) {
  ++number_;
  html_ += "<tr>";
  add_cell(html_, std::to_string(number_), sum_cell);
  add_cell(html_, row.date);
  add_cell(html_, row.name);
  add_cell(html_, grouped(row.iban));
  add_cell(html_, row.text);
  add_cell(html_, grouped_euros(row.cents), sum_cell);
  html_ += "</tr>\n";
}

std::string report_page(const report_facts& facts) {
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
      "'unsafe-inline'\">\n<title>";
  page += escaped(facts.input);
  page.append("</title>\n<style>").append(style).append("</style>\n</head>\n<body>\n");
  page += heading(facts) + table_of_days(facts.summary.sums) + list_of_warnings(facts.notes);
  page +=
      "<h2>Payments</h2>\n<table>\n<thead><tr><th class=\"sum\">No.</th><th>Date</th><th>Name</th>"
      "<th>IBAN</th><th>Text</th><th class=\"sum\">EUR</th></tr></thead>\n";
  page.append(facts.rows.html()).append("</table>\n").append(signatures);
  return page + "</body>\n</html>\n";
}

}  // namespace tivex_program
