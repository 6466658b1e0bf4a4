// The grouping of a message's transactions into payment blocks.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <tuple>

#include "core/message.h"
#include "transactions/transaction.h"
#include "xml/date_key.h"

namespace tivex {

// A transaction with what orders it: the date and its place in the message.
template <class record>
struct grouped_transaction {
  date_key date;
  std::uint32_t place;
  const record* tx;
};

// The transactions of one date in the order of adding.
template <class record>
struct payment_block {
  const char* date = nullptr;
  double sum = 0.0;
  std::uint32_t count = 0;
  std::span<const grouped_transaction<record>> transactions;
};

// The blocks of a message in ascending order of their dates, made one by one.
// They come from sorting, which takes n log n steps whatever the dates are.
template <class record>
class payment_blocks {
 public:
  // False, with the reason in the message, when the transactions cannot be
  // grouped. The message must stay as it is while blocks are asked for.
  bool group(message& msg);

  // The next block; none behind the last.
  std::optional<payment_block<record>> next();

 private:
  using entry = grouped_transaction<record>;
  struct free_delete {
    void operator()(entry* entries) const { std::free(entries); }
  };

  const char* date_of(const record& tx) const { return tx.date ? tx.date.c_str() : default_date_; }

  const char* default_date_ = nullptr;
  std::unique_ptr<entry[], free_delete> entries_;
  std::span<const entry> left_;
};

template <class record>
bool payment_blocks<record>::group(message& msg) {
  if (msg.tx_count == 0) return true;
  default_date_ = msg.date.c_str();
  entries_.reset(static_cast<entry*>(std::calloc(msg.tx_count, sizeof(entry))));
  if (!entries_) return msg.fail("Out of memory");

  const std::span<entry> all(entries_.get(), msg.tx_count);
  const record* tx = first_transaction<record>(msg);
  for (std::uint32_t place = 0; place < msg.tx_count; ++place, tx = tx->next) {
    const char* const date = date_of(*tx);
    if (std::strlen(date) > date_key::length) return msg.fail("Internal error (pmt not found)");
    all[place] = {date_key(date), place, tx};
  }
  std::sort(all.begin(), all.end(), [](const entry& left, const entry& right) {
    return std::tie(left.date, left.place) < std::tie(right.date, right.place);
  });
  left_ = all;
  return true;
}

template <class record>
std::optional<payment_block<record>> payment_blocks<record>::next() {
  if (left_.empty()) return std::nullopt;
  payment_block<record> block;
  block.date = date_of(*left_.front().tx);
  for (const entry& candidate : left_) {
    if (candidate.date != left_.front().date) break;
    block.sum += candidate.tx->amount;
    ++block.count;
  }
  block.transactions = left_.first(block.count);
  left_ = left_.subspan(block.count);
  return block;
}

}  // namespace tivex
