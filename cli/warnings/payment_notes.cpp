#include "warnings/payment_notes.h"

#include <algorithm>
#include <utility>

#include "terminal/diagnostics.h"
#include "terminal/json_object.h"

namespace tivex_program {
namespace {

constexpr std::size_t most_shown = 20;
constexpr std::size_t most_lines = 5;

std::string place_text(const std::string& file, std::size_t line, const std::string& name) {
  std::string text = file;
  if (line > 0) text += ':' + std::to_string(line);
  if (!name.empty()) text += ": " + name;
  return text + ": ";
}

const std::string& shown_name(const std::string& column, const std::string& key) {
  return column.empty() ? key : column;
}

// " (also on lines 3, 4 and 196 more)"
std::string further_lines(const warning_group& group) {
  if (group.count < 2) return {};
  std::string text = group.count == 2 ? " (also on line " : " (also on lines ";
  for (std::size_t i = 1; i < group.lines.size(); ++i) {
    if (i > 1) text += ", ";
    text += std::to_string(group.lines[i]);
  }
  const std::size_t others = group.count - group.lines.size();
  if (others > 0) text += " and " + std::to_string(others) + " more";
  return text + ')';
}

std::size_t first_line(const warning_group& group) {
  return group.lines.empty() ? 0 : group.lines.front();
}

void add_place(json_object& object, const std::string& file, std::size_t line,
               const std::string& column, const std::string& key) {
  object.add_text("file", file);
  if (line > 0) {
    object.add_number("line", line);
  } else {
    object.add_null("line");
  }
  object.add_text_or_null("key", key);
  object.add_text_or_null("column", column);
}

void print_warning(fault_form form, const std::string& file, const warning_group& group) {
  const std::size_t line = first_line(group);
  const auto& [name, column, key, text] = group.what;
  if (form == fault_form::text) {
    return print_note(place_text(file, line, shown_name(column, key)) + "warning: " + text +
                      further_lines(group));
  }
  json_object object;
  add_place(object, file, line, column, key);
  object.add_text("warning", text);
  object.add_text("name", name);
  object.add_number("count", group.count);
  print_lines(object.line() + '\n');
}

void print_change(fault_form form, const std::string& file, const value_change& change) {
  if (form == fault_form::text) {
    return print_note(place_text(file, change.line, shown_name(change.column, change.key)) + "'" +
                      change.before + "' is written as '" + change.after + "'");
  }
  json_object object;
  add_place(object, file, change.line, change.column, change.key);
  object.add_text("before", change.before);
  object.add_text("after", change.after);
  print_lines(object.line() + '\n');
}

std::string counted(std::size_t count, const std::string& what) {
  return std::to_string(count) + " more " + what + (count == 1 ? "" : "s");
}

}  // namespace

bool payment_notes::is_full(std::size_t shown) const {
  return extent_ == fault_extent::first && shown >= most_shown;
}

void payment_notes::warn(warning what, std::size_t line) {
  ++warnings_;
  // Of all there may be as many as lines: then only neighbours are compared.
  const std::size_t looked_at = std::min(groups_.size(), most_shown);
  const auto same = std::find_if(groups_.end() - static_cast<std::ptrdiff_t>(looked_at),
                                 groups_.end(), [&](const warning_group& group) {
                                   return group.what.name == what.name &&
                                          group.what.text == what.text &&
                                          group.what.key == what.key;
                                 });
  if (same != groups_.end()) {
    ++same->count;
    if (same->lines.size() < most_lines) same->lines.push_back(line);
  } else if (is_full(groups_.size())) {
    ++further_[what.name];
  } else {
    groups_.push_back({std::move(what), {}, 1});
    if (line > 0) groups_.back().lines.push_back(line);
  }
}

void payment_notes::sort() { std::ranges::stable_sort(groups_, {}, first_line); }

void payment_notes::change(value_change change) {
  ++changes_count_;
  if (!is_full(changes_.size())) changes_.push_back(std::move(change));
}

std::string payment_notes::left_out() const {
  std::string text;
  std::size_t count = 0;
  for (const auto& [name, number] : further_) {
    count += number;
    text.append(text.empty() ? " (" : ", ").append(name).append(" ").append(std::to_string(number));
  }
  return count == 0 ? "" : counted(count, "warning") + text + ')';
}

void payment_notes::print(fault_form form, const std::string& file) const {
  for (const value_change& each : changes_) print_change(form, file, each);
  const std::size_t others = changes_count_ - changes_.size();
  const auto print_count = [&](const std::string& text) {
    if (form == fault_form::text) return print_note(file + ": " + text);
    json_object object;
    add_place(object, file, 0, "", "");
    object.add_text("note", text);
    print_lines(object.line() + '\n');
  };
  if (others > 0) print_count(counted(others, "changed value") + " (--all-faults tells all)");
  for (const warning_group& group : groups_) print_warning(form, file, group);
  const std::string others_left_out = left_out();
  if (!others_left_out.empty()) print_count(others_left_out);
}

}  // namespace tivex_program
