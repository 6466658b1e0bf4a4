#include "statements/statement_file.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "files/input_file.h"
#include "files/temporary_copy.h"
#include "files/utf8_scan.h"
#include "files/wiped_bytes.h"
#include "files/zip_archive.h"
#include "platform/exhausted_memory.h"
#include "statements/file_kind.h"
#include "terminal/library_text.h"

namespace tivex_program {
namespace {

using statement_taker = std::function<void(const statement_file&)>;

constexpr std::size_t part_size = std::size_t{1} << 16;

std::string_view view(const wiped_bytes& bytes) { return {bytes.data(), bytes.size()}; }

// Appends what is left of the input, or as much of it as is allowed.
void read_on(input_file& input, wiped_bytes& bytes, std::size_t most) {
  while (bytes.size() < most) {
    const std::size_t filled = bytes.size();
    bytes.resize(filled + std::min(part_size, most - filled));
    const std::size_t count = input.read(bytes.data() + filled, bytes.size() - filled);
    bytes.resize(filled + count);
    if (count == 0) return;
  }
}

// A spreadsheet or document of today is an archive, too: it has a file of this name.
struct office_form {
  std::string_view member;
  const char* kind;
};
constexpr office_form office_forms[] = {{"xl/workbook.xml", "an .xlsx spreadsheet"},
                                        {"word/document.xml", "a .docx document"},
                                        {"META-INF/manifest.xml", "an OpenDocument file"}};

std::string no_statements(std::string_view kind) {
  return kind.empty() ? "no statements" : "no statements: this looks like " + std::string(kind);
}

class statement_reader {
 public:
  statement_reader(const std::string& name, bool strict, const statement_taker& take)
      : input_(name), strict_(strict), take_(take) {
    file_.name = name;
  }

  void read() {
    read_on(input_, content_, looked_at);
    if (!input_.error().empty()) {
      // The library says in its own words why a file cannot be read.
      return hand_over(input_.name() == "-" ? input_.error() : load(input_.name(), ""));
    }
    if (is_zip_archive(view(content_))) return read_archive();
    if (input_.name() != "-" && input_.size()) return hand_over(load_in_place());
    // Standard input has no name, and a pipe cannot be read again.
    read_on(input_, content_, content_.max_size());
    std::string error = input_.error().empty() ? load_copy(view(content_)) : input_.error();
    wiped_bytes().swap(content_);  // the library has its own by now
    hand_over(std::move(error));
  }

 private:
  // With the reason why there are no statements, empty when there are some.
  void hand_over(std::string error) {
    file_.error = std::move(error);
    take_(file_);
  }

  // The library reads the file itself; here it is looked at part by part.
  std::string load_in_place() {
    const std::string_view head = view(content_);
    utf8_scan scan;
    scan.take(head);
    wiped_bytes part(part_size);
    while (!is_camt(head) && !scan.has_nul()) {
      const std::size_t count = input_.read(part.data(), part.size());
      if (count == 0) break;
      scan.take({part.data(), count});
    }
    note_text(head, scan);
    return load(input_.name(), head);
  }

  std::string load_copy(std::string_view text) {
    const std::string_view head = text.substr(0, looked_at);
    utf8_scan scan;
    if (!is_camt(head)) scan.take(text);
    note_text(head, scan);
    const temporary_copy copy(text);
    return copy.error().empty() ? load(copy.path(), head) : "temporary copy: " + copy.error();
  }

  void read_archive() {
    read_on(input_, content_, archive_limit + 1);
    if (!input_.error().empty()) return hand_over(input_.error());
    if (content_.size() > archive_limit) return hand_over("ZIP archive of more than 256 MiB");
    const zip_archive archive(view(content_));
    if (!archive.error().empty()) return hand_over(archive.error());
    if (archive.members().empty()) return hand_over("ZIP archive without files");
    for (const zip_archive::member& member : archive.members()) {
      for (const office_form& form : office_forms) {
        if (member.name == form.member) return hand_over(no_statements(form.kind));
      }
    }
    for (const zip_archive::member& member : archive.members()) {
      file_ = {};
      file_.name = input_.name() + '/' + member.name;
      hand_over(load_member(archive, member));
    }
  }

  std::string load_member(const zip_archive& archive, const zip_archive::member& member) {
    wiped_bytes content;
    const std::string error = archive.unpack(member, content);
    return error.empty() ? load_copy(view(content)) : error;
  }

  bool is_camt(std::string_view head) const { return !strict_ && begins_as_xml(head); }

  void note_text(std::string_view head, const utf8_scan& scan) {
    file_.is_xml = is_camt(head);
    file_.is_utf8 = scan.is_utf8();
    if (!file_.is_xml && scan.has_nul()) {
      file_.note = "text ends at a NUL byte at offset " + std::to_string(scan.length());
    }
  }

  // Returns the reason of a failure; the library gives none for a text that it takes for
  // empty, and for want of memory.
  std::string load(const std::string& path, std::string_view head) {
    const int format = strict_ ? TIVEX_FORMAT_MT940 : TIVEX_FORMAT_DETECT;
    file_.parser.reset(tivex_stmt_parser_new());
    if (!file_.parser) end_for_want_of_memory();
    if (tivex_stmt_parser_load(file_.parser.get(), format, path.c_str()) != 1) {
      std::string error = library_text(tivex_stmt_parser_getError(file_.parser.get()));
      if (error == "No camt document" || is_html(head)) return no_statements_in(head);
      if (!error.empty()) {
        file_.note.clear();
        return error;
      }
      if (!head.empty() && head.front() != '\0') end_for_want_of_memory();
    }
    const bool found = tivex_stmt_parser_getStatement(file_.parser.get()) != nullptr;
    return found ? "" : no_statements_in(head);
  }

  std::string no_statements_in(std::string_view head) {
    const std::string kind = kind_of_file(head);
    if (!kind.empty()) file_.note.clear();  // it is told by what it is
    return no_statements(kind);
  }

  input_file input_;
  bool strict_;
  const statement_taker& take_;
  wiped_bytes content_;
  statement_file file_;
};

}  // namespace

void read_statement_files(const std::string& name, bool strict, const statement_taker& take) {
  statement_reader(name, strict, take).read();
}

}  // namespace tivex_program
