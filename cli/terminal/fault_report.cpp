#include "terminal/fault_report.h"

#include "terminal/diagnostics.h"
#include "terminal/json_object.h"

namespace tivex_program {
namespace {

std::string line_of_text(const std::string& file, const file_fault& fault) {
  std::string line = file;
  if (fault.line > 0) line += ':' + std::to_string(fault.line);
  if (!fault.key.empty()) line += ": " + fault.key;
  return line + ": " + fault.text;
}

std::string line_of_json(const std::string& file, const file_fault& fault) {
  json_object object;
  object.add_text("file", file);
  if (fault.line > 0) {
    object.add_number("line", fault.line);
  } else {
    object.add_null("line");
  }
  object.add_text_or_null("key", fault.key);
  object.add_text("fault", fault.text);
  return object.line() + '\n';
}

}  // namespace

void print_fault(fault_form form, const std::string& file, const file_fault& fault) {
  if (form == fault_form::json) return print_lines(line_of_json(file, fault));
  print_error(line_of_text(file, fault));
}

void fault_report::print(fault_form form) const {
  for (const file_fault& fault : faults_) print_fault(form, file_, fault);
  const std::size_t others = count_ - faults_.size();
  if (others == 0) return;
  print_fault(form, file_,
              {0, "", std::to_string(others) + (others == 1 ? " more fault" : " more faults")});
}

void fault_report::record(file_fault fault) {
  ++count_;
  if (!full()) faults_.push_back(std::move(fault));
}

}  // namespace tivex_program
