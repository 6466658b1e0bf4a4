#include "publishers/import.h"

#include <optional>
#include <utility>

#include "edition_checks.h"
#include "edition_files.h"
#include "publishers/austrian_directory.h"
#include "publishers/bank_code_file.h"
#include "publishers/german_versions.h"
#include "publishers/provider_register.h"
#include "publishers/row_changes.h"
#include "publishers/swiss_bank_master.h"
#include "whole_file.h"

namespace tivex_edition {

namespace {

// Reads a file that must hold rows; nothing for a file that is not given.
template <typename row_type>
publication<row_type> read_published(const std::string& path,
                                     publication<row_type> (*read)(const published_file&),
                                     fault_list& faults) {
  if (path.empty()) return {};
  const std::optional<std::string> content = read_whole_file(path, faults);
  if (!content) return {};
  const published_file file(path, *content, faults);
  if (lines_of(file.text()).empty()) {
    file.fault("is empty");
    return {};
  }
  const std::size_t faults_before = faults.all().size();
  publication<row_type> published = read(file);
  if (published.rows.empty() && faults.all().size() == faults_before) file.fault("holds no rows");
  return published;
}

// Returns what to tell about the table. A table that loses many rows is a fault: its
// file may have been cut short.
template <typename row_type>
std::string replace_rows(const char* file_name, edition_table<row_type>& table,
                         publication<row_type> published, const char* skipped_rows,
                         fault_list& losses) {
  const row_changes changes =
      changes_between(sorted_fields(table.rows), sorted_fields(published.rows));
  table.rows = std::move(published.rows);
  if (!published.valid_from.empty()) table.valid_from = published.valid_from;
  if (changes.suspicious()) {
    losses.add(file_name, std::to_string(changes.went) + " of " + std::to_string(changes.before) +
                              " rows would go, more than 2 in 100; --shrink lets them go");
  }
  const std::string skipped = std::to_string(published.skipped) + " skipped: " + skipped_rows;
  return std::string(file_name) + ": " + std::to_string(table.rows.size()) + " rows, " +
         std::to_string(changes.came) + " came, " + std::to_string(changes.went) + " went, " +
         std::to_string(changes.changed) + " changed, " +
         (published.skipped > 0 ? skipped : "none skipped") + '\n';
}

publication<german_row> read_german(const import_request& request,
                                    const std::vector<german_row>& replaced, fault_list& faults) {
  publication<german_row> listed = read_published(request.german, read_bank_code_file, faults);
  const publication<german_row> later =
      read_published(request.german_later, read_bank_code_file, faults);
  return {request.german_valid_from,
          german_versions(replaced, listed.rows, later.rows, request.german_later_valid_from),
          listed.skipped + later.skipped};
}

}  // namespace

std::string import_tables(const import_request& request, fault_list& faults) {
  edition facts = read_edition(request.folder, faults);
  std::string report;
  fault_list losses;
  if (!request.german.empty()) {
    report += replace_rows(german_file_name, facts.german,
                           read_german(request, facts.german.rows, faults), "branch rows", losses);
  }
  if (!request.austrian.empty()) {
    publication<bank_row> published =
        read_published(request.austrian, read_austrian_directory, faults);
    published.valid_from = request.austrian_valid_from;
    report += replace_rows(austrian_file_name, facts.austrian, std::move(published),
                           "not of head offices", losses);
  }
  if (!request.swiss.empty()) {
    report += replace_rows(swiss_file_name, facts.swiss,
                           read_published(request.swiss, read_swiss_bank_master, faults),
                           "entries of other types", losses);
  }
  if (!request.providers.empty()) {
    report +=
        replace_rows(bics_file_name, facts.bics,
                     read_published(request.providers, read_provider_register, faults), "", losses);
  }
  // Rows that were refused would only bring follow-up faults.
  if (faults.empty()) check_edition(facts, faults);
  if (faults.empty() && !request.shrink) faults = losses;
  if (faults.empty()) write_edition(request.folder, facts, faults);
  return faults.empty() ? report : std::string();
}

}  // namespace tivex_edition
