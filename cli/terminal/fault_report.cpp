#include "terminal/fault_report.h"

#include <algorithm>

#include "terminal/diagnostics.h"
#include "terminal/json_object.h"

namespace tivex_program {
namespace {

constexpr std::size_t most_shown = 20;
constexpr std::size_t most_reasons = 40;

std::string text_with_detail(const file_fault& fault) {
  return fault.detail.empty() ? fault.text : fault.text + " (" + fault.detail + ')';
}

std::string line_of_text(const std::string& file, const file_fault& fault, std::size_t count) {
  std::string line = file;
  if (fault.line > 0) line += ':' + std::to_string(fault.line);
  const std::string& name = fault.column.empty() ? fault.key : fault.column;
  if (!name.empty()) line += ": " + name;
  if (!fault.value.empty()) line += " '" + fault.value + '\'';
  line += ": " + text_with_detail(fault);
  if (!fault.advice.empty()) line += "; " + fault.advice;
  if (count > 1) line += " (the first of " + std::to_string(count) + " such faults)";
  return line;
}

std::string line_of_json(const std::string& file, const file_fault& fault, std::size_t count) {
  json_object object;
  object.add_text("file", file);
  if (fault.line > 0) {
    object.add_number("line", fault.line);
  } else {
    object.add_null("line");
  }
  object.add_text_or_null("key", fault.key);
  object.add_text_or_null("column", fault.column);
  object.add_text_or_null("value", fault.value);
  object.add_text("fault", text_with_detail(fault));
  object.add_text_or_null("advice", fault.advice);
  object.add_number("count", count);
  return object.line() + '\n';
}

}  // namespace

void print_fault(fault_form form, const std::string& file, const file_fault& fault,
                 std::size_t count) {
  if (form == fault_form::json) return print_lines(line_of_json(file, fault, count));
  print_error(line_of_text(file, fault, count));
}

void fault_report::print(fault_form form) const {
  for (const file_fault& fault : shown_) print_fault(form, file_, fault);
  std::size_t all = others_;
  for (const counted_fault& each : counted_) all += each.count;
  if (all > 0 && form == fault_form::text) {
    print_error(file_ + ": " + std::to_string(all) + (all == 1 ? " more fault" : " more faults") +
                " (--all-faults tells all):");
  }
  for (const counted_fault& each : counted_) print_fault(form, file_, each.first, each.count);
  if (others_ > 0) print_fault(form, file_, {0, "", "faults of other kinds"}, others_);
}

void fault_report::add(file_fault fault) {
  if (extent_ == fault_extent::all || shown_.size() < most_shown) {
    shown_.push_back(std::move(fault));
  } else {
    count(std::move(fault));
  }
}

void fault_report::count(file_fault fault) {
  const auto same = std::ranges::find_if(counted_, [&](const counted_fault& each) {
    return each.first.key == fault.key && each.first.text == fault.text;
  });
  if (same != counted_.end()) {
    ++same->count;
  } else if (counted_.size() < most_reasons) {
    counted_.push_back({std::move(fault), 1});
  } else {
    ++others_;
  }
}

}  // namespace tivex_program
