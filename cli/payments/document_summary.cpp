#include "payments/document_summary.h"

#include <cstddef>

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

}  // namespace

std::vector<std::string> document_summary(std::string_view document, const document_form& form,
                                          const std::string& file) {
  const std::string_view header = between(document, "<GrpHdr>", "</GrpHdr>");
  const std::string_view transactions = between(header, "<NbOfTxs>", "<");
  const std::string_view sum = between(header, "<CtrlSum>", "<");
  const std::string schema(between(document, ":xsd:", "\""));
  const char* const subset = form.rulebook.starts_with("DE") ? " (German subset)" : "";
  return {labelled_line("transactions", std::string(transactions)),
          labelled_line("sum", std::string(sum) + " EUR"),
          labelled_line("payment blocks", std::to_string(count_blocks(document))),
          labelled_line("rulebook", form.rulebook + " (" + schema + ")"),
          labelled_line("schema", form.strict ? "meets " + schema + subset : "not checked"),
          labelled_line("file", file)};
}

}  // namespace tivex_program
