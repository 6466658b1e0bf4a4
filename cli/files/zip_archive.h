#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "files/wiped_bytes.h"

struct zip;

namespace tivex_program {

// The largest archive that is read.
inline constexpr std::size_t archive_limit = std::size_t{1} << 28;

// Tells an archive by its first bytes.
bool is_zip_archive(std::string_view head);

// The files in a ZIP archive, whose bytes have to live as long as the object.
class zip_archive {
 public:
  struct member {
    std::uint64_t index;
    std::string name;  // in UTF-8
    std::uint64_t size;
    bool encrypted;
  };

  explicit zip_archive(std::string_view bytes);
  ~zip_archive();
  zip_archive(const zip_archive&) = delete;
  zip_archive& operator=(const zip_archive&) = delete;

  // Why it cannot be read or is too large, empty when it is good.
  const std::string& error() const { return error_; }
  // In the order of the archive, without folders.
  const std::vector<member>& members() const { return members_; }
  // Unpacks one. Returns the reason of a failure, empty for none.
  std::string unpack(const member& wanted, wiped_bytes& content) const;

 private:
  void list_members();

  zip* archive_ = nullptr;
  std::string error_;
  std::vector<member> members_;
};

}  // namespace tivex_program
