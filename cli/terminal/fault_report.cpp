#include "terminal/fault_report.h"

#include "terminal/diagnostics.h"

namespace tivex_program {

void fault_report::add(const std::string& text) { record(file_ + ": " + text); }

void fault_report::add(std::size_t line, const std::string& text) {
  record(file_ + ":" + std::to_string(line) + ": " + text);
}

void fault_report::add(std::size_t line, const std::string& key, const std::string& text) {
  add(line, key.empty() ? text : key + ": " + text);
}

void fault_report::print() const {
  for (const std::string& line : lines_) print_error(line);
  const std::size_t others = count_ - lines_.size();
  if (others > 0) {
    print_error(file_ + ": " + std::to_string(others) +
                (others == 1 ? " more fault" : " more faults"));
  }
}

void fault_report::record(std::string line) {
  ++count_;
  if (!full()) lines_.push_back(std::move(line));
}

}  // namespace tivex_program
