#include "files/zip_archive.h"

#include <zip.h>

#include <algorithm>
#include <memory>

#include "platform/exhausted_memory.h"

namespace tivex_program {
namespace {

constexpr std::int64_t most_members = 10000;
constexpr std::uint64_t member_limit = std::uint64_t{1} << 28;
constexpr std::uint64_t sum_limit = std::uint64_t{1} << 30;

// The first bytes of an archive, and of one without members.
constexpr std::string_view marks[] = {"PK\x03\x04", "PK\x05\x06"};

// The text of an error; for want of memory the program ends.
std::string text_of(zip_error_t& error) {
  if (zip_error_code_zip(&error) == ZIP_ER_MEMORY) end_for_want_of_memory();
  return zip_error_strerror(&error);
}

// Why a file of an archive is not there.
std::string not_unpacked(zip_error_t& error) {
  const std::string text = text_of(error);
  const bool sound = zip_error_code_zip(&error) == ZIP_ER_COMPNOTSUPP;
  return (sound ? "file that cannot be unpacked (" : "damaged file in a ZIP archive (") + text +
         ")";
}

std::string damaged(zip_error_t& error) { return "damaged ZIP archive (" + text_of(error) + ")"; }

struct file_closer {
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};

}  // namespace

bool is_zip_archive(std::string_view head) {
  return std::ranges::any_of(marks,
                             [head](std::string_view mark) { return head.starts_with(mark); });
}

zip_archive::zip_archive(std::string_view bytes) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  if (source != nullptr) archive_ = zip_open_from_source(source, ZIP_RDONLY, &error);
  if (archive_ == nullptr) {
    zip_source_free(source);
    error_ = damaged(error);
  } else {
    list_members();
  }
  zip_error_fini(&error);
}

zip_archive::~zip_archive() {
  if (archive_ != nullptr) zip_discard(archive_);
}

void zip_archive::list_members() {
  const zip_int64_t count = zip_get_num_entries(archive_, 0);
  if (count > most_members) {
    error_ = "ZIP archive of more than " + std::to_string(most_members) + " files";
    return;
  }
  std::uint64_t sum = 0;
  for (zip_int64_t i = 0; i < count; ++i) {
    zip_stat_t status;
    const auto index = static_cast<zip_uint64_t>(i);
    if (zip_stat_index(archive_, index, 0, &status) != 0) {
      error_ = damaged(*zip_get_error(archive_));
      return;
    }
    const std::string name = status.name;
    if (name.ends_with('/')) continue;
    sum += std::min(status.size, sum_limit);
    if (sum > sum_limit) {
      error_ = "ZIP archive with files of more than 1 GiB";
      return;
    }
    members_.push_back({index, name, status.size, status.encryption_method != ZIP_EM_NONE});
  }
}

std::string zip_archive::unpack(const member& wanted, wiped_bytes& content) const {
  if (wanted.encrypted) return "encrypted file in a ZIP archive";
  if (wanted.size > member_limit) return "file of more than 256 MiB in a ZIP archive";
  const std::unique_ptr<zip_file_t, file_closer> file(zip_fopen_index(archive_, wanted.index, 0));
  if (!file) return not_unpacked(*zip_get_error(archive_));
  // The byte more tells a file that is longer than it says, and lets the checksum be held
  // against what was read.
  const auto size = static_cast<std::size_t>(wanted.size);
  content.resize(size + 1);
  std::size_t filled = 0;
  while (filled < content.size()) {
    const zip_int64_t count =
        zip_fread(file.get(), content.data() + filled, content.size() - filled);
    if (count < 0) {
      return not_unpacked(*zip_file_get_error(file.get()));
    }
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
  }
  if (filled != size) return "damaged file in a ZIP archive (it has another size)";
  content.resize(size);
  return {};
}

}  // namespace tivex_program
