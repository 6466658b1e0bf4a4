#include "statements/dialects/text_pieces.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tivex {

text_pieces::~text_pieces() {
  if (pieces_ != first_) std::free(pieces_);
}

void text_pieces::exchange_with_last(std::size_t index, char separator) {
  if (exhausted_) return;
  std::swap(pieces_[index], pieces_[count_ - 1]);
  pieces_[count_ - 1].separator = separator;
}

bool text_pieces::grow() {
  if (exhausted_) return false;
  auto* const more = static_cast<text_piece*>(std::malloc(2 * capacity_ * sizeof(text_piece)));
  exhausted_ = more == nullptr;
  if (exhausted_) return false;
  std::copy(begin(), end(), more);
  if (pieces_ != first_) std::free(pieces_);
  pieces_ = more;
  capacity_ *= 2;
  return true;
}

}  // namespace tivex
