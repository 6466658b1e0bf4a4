#include "command_tree.h"

#include <CLI/CLI.hpp>

#include "fixed_values.h"

namespace tivex_reference {

namespace {

std::vector<std::string> names_of(const std::set<CLI::Option*>& options) {
  std::vector<std::string> names;
  names.reserve(options.size());
  for (const CLI::Option* const option : options) names.push_back(option->get_name());
  std::sort(names.begin(), names.end());  // the set is sorted by address
  return names;
}

parameter read_option(CLI::Option& option) {
  parameter read;
  if (!option.get_snames().empty()) read.short_name = '-' + option.get_snames().front();
  if (!option.get_lnames().empty()) read.long_name = "--" + option.get_lnames().front();
  const bool positional = option.get_positional();
  const bool flag = !positional && option.get_type_size() == 0;
  if (!flag) read.value = positional ? option.get_name(true) : option.get_type_name();
  read.description = option.get_description();
  read.fallback = flag ? "" : option.get_default_str();
  read.values = fixed_values(option);
  read.needs = names_of(option.get_needs());
  read.excludes = names_of(option.get_excludes());
  read.required = option.get_required();
  read.repeated = option.get_items_expected_max() > 1;
  return read;
}

command read_command(CLI::App& app, const std::string& above) {
  command read;
  read.name = app.get_name();
  read.path = above + read.name;
  read.description = app.get_description();
  read.footer = app.get_footer();
  for (CLI::Option* const option : app.get_options([](CLI::Option*) { return true; })) {
    if (option->get_group().empty()) continue;  // hidden
    (option->get_positional() ? read.arguments : read.options).push_back(read_option(*option));
  }
  for (CLI::App* const each : app.get_subcommands([](CLI::App*) { return true; })) {
    read.commands.push_back(read_command(*each, read.path + ' '));
  }
  return read;
}

}  // namespace

std::vector<std::string> parameter::names() const {
  std::vector<std::string> all;
  if (!short_name.empty()) all.push_back(short_name);
  if (!long_name.empty()) all.push_back(long_name);
  return all;
}

bool parameter::takes_file() const {
  return value.find("FILE") != std::string::npos || value == "DIR";
}

const parameter* command::find_option(const std::string& long_name) const {
  for (const parameter& option : options) {
    if (option.long_name == long_name) return &option;
  }
  return nullptr;
}

command read_commands(CLI::App& program) { return read_command(program, ""); }

std::vector<const command*> all_commands(const command& top) {
  std::vector<const command*> all = {&top};
  for (const command& each : top.commands) {
    const std::vector<const command*> beneath = all_commands(each);
    all.insert(all.end(), beneath.begin(), beneath.end());
  }
  return all;
}

std::vector<const command*> working_commands(const command& top) {
  std::vector<const command*> working;
  for (const command* const each : all_commands(top)) {
    if (each->commands.empty()) working.push_back(each);
  }
  return working;
}

}  // namespace tivex_reference
