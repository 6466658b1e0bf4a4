#include "payments/document_summary.h"

#include <charconv>

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
         line("file", file.empty() ? "standard output" : file);
}

std::string json_of(const document_summary& summary, const std::string& file) {
  json_object object;
  object.add_number("transactions", summary.transactions);
  object.add_text("sum", summary.sum);
  object.add_text("currency", currency);
  object.add_number("payment_blocks", summary.payment_blocks);
  object.add_text("rulebook", summary.rulebook);
  object.add_text("message", summary.message);
  object.add_text_or_null("schema", summary.schema);
  object.add_text_or_null("file", file);
  return object.line() + '\n';
}

}  // namespace tivex_program
