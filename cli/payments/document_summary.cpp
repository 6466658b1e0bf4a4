#include "payments/document_summary.h"

#include <charconv>
#include <vector>

#include "payments/amount_cents.h"
#include "payments/rulebooks.h"
#include "terminal/diagnostics.h"
#include "terminal/json_object.h"
#include "terminal/labelled_line.h"

namespace tivex_program {
namespace {

// The text between the first occurrence of a start and the end after it.
std::string_view between(std::string_view text, std::string_view start, std::string_view end) {
  const std::size_t found = text.find(start);
  if (found == std::string_view::npos) return "?";
  text.remove_prefix(found + start.size());
  return text.substr(0, text.find(end));
}

// Counts from the name: of its first letter there are far fewer than of brackets.
std::size_t count_blocks(std::string_view document) {
  constexpr std::string_view name = "PmtInf>";
  std::size_t found = 0;
  for (std::size_t at = 0; (at = document.find(name, at)) != std::string_view::npos;
       at += name.size()) {
    if (document.substr(0, at).ends_with('<')) ++found;
  }
  return found;
}

std::size_t number(std::string_view digits) {
  std::size_t value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

constexpr const char* currency = "EUR";

constexpr std::size_t most_dates = 20;

// A line for each date, up to twenty.
std::string text_of(const date_sums& sums) {
  std::string text;
  std::size_t shown = 0;
  for (const auto& [date, sum] : sums) {
    const char* const label = shown == 0 ? "by date" : "";
    if (++shown > most_dates) {
      return text + labelled_line(label, std::to_string(sums.size() - most_dates) + " more dates") +
             '\n';
    }
    text += labelled_line(label, date + "  " + euro_text(sum.cents) + ' ' + currency + " (" +
                                     std::to_string(sum.payments) + ')') +
            '\n';
  }
  return text;
}

std::vector<json_object> objects_of(const date_sums& sums) {
  std::vector<json_object> objects;
  for (const auto& [date, sum] : sums) {
    json_object& object = objects.emplace_back();
    object.add_text("date", date);
    object.add_number("transactions", sum.payments);
    object.add_text("sum", euro_text(sum.cents));
  }
  return objects;
}

}  // namespace

document_summary summarize(std::string_view document, const document_form& form) {
  const std::string_view header = between(document, "<GrpHdr>", "</GrpHdr>");
  const std::string message(between(document, ":xsd:", "\""));
  const std::string subset = subset_of(form.rulebook);
  return {number(between(header, "<NbOfTxs>", "<")),
          std::string(between(header, "<CtrlSum>", "<")),
          count_blocks(document),
          form.rulebook,
          message,
          form.strict ? "meets " + message + (subset.empty() ? "" : " (" + subset + ")")
                      : std::string()};
}

std::string text_of(const document_summary& summary, const std::string& file) {
  const auto line = [](std::string_view label, const std::string& value) {
    return printable_line(labelled_line(label, value));
  };
  return line("transactions", std::to_string(summary.transactions)) +
         line("sum", summary.sum + " " + currency) +
         line("payment blocks", std::to_string(summary.payment_blocks)) +
         line("rulebook", summary.rulebook + " (" + summary.message + ")") +
         line("schema", summary.schema.empty() ? "not checked" : summary.schema) +
         text_of(summary.sums) +
         (summary.transliterated == 0
              ? ""
              : line("transliterated", std::to_string(summary.transliterated))) +
         (summary.warnings == 0 ? "" : line("warnings", std::to_string(summary.warnings))) +
         line("file", !summary.is_written ? "not written (--check)"
                      : file.empty()      ? "standard output"
                                          : file);
}

std::string json_of(const table_facts& table, const document_summary& summary,
                    const std::string& file) {
  json_object object;
  add_to(object, table);
  object.add_number("transactions", summary.transactions);
  object.add_text("sum", summary.sum);
  object.add_text("currency", currency);
  object.add_number("payment_blocks", summary.payment_blocks);
  object.add_text("rulebook", summary.rulebook);
  object.add_text("message", summary.message);
  object.add_text_or_null("schema", summary.schema);
  object.add_objects("sums", objects_of(summary.sums));
  object.add_number("transliterated", summary.transliterated);
  object.add_number("warnings", summary.warnings);
  object.add_text_or_null("file", summary.is_written ? file : "");
  return object.line() + '\n';
}

}  // namespace tivex_program
