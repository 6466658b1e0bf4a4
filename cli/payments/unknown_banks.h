// German IBANs whose bank the directory does not have. The library refuses them, so that it is
// given others in their place, which no bank has, and the document gets the true ones.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tivex_program {

class unknown_banks {
 public:
  // Whether an IBAN is one that only stands for another.
  static bool is_stand_in(std::string_view iban);

  // A German IBAN of an unknown bank, as told below.
  static bool is_unknown(const std::string& iban);

  // What stands for the account that the message is made for, and what for.
  static std::string own_stand_in();
  void set_own(std::string iban) { own_ = std::move(iban); }

  // Puts a stand-in in the place of a German IBAN whose length, characters and check digits are
  // right and whose bank code alone is not known. False, and nothing done, for any other.
  bool replace(std::string& iban);

  // The true IBAN behind a stand-in, any other as it is.
  std::string_view of(std::string_view iban) const;

  bool empty() const { return ibans_.empty() && own_.empty(); }

  // Puts the true IBANs, which are shorter, into a document of all rows. False when it does
  // not have each stand-in exactly once, and the own one at all; then it is of no use any more.
  bool put_back(char* document) const;

 private:
  std::optional<std::size_t> place_of(std::string_view iban) const;
  std::string_view iban_at(std::size_t place) const;

  std::vector<std::string> ibans_;
  std::string own_;
};

}  // namespace tivex_program
