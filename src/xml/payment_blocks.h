// The grouping of a message's transactions into payment blocks.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <utility>

#include "core/message.h"
#include "transactions/transaction.h"
#include "xml/block_key.h"
#include "xml/key_order.h"
#include "xml/payment_totals.h"

namespace tivex {

// A transaction with what groups it.
template <class record>
struct grouped_transaction {
  block_key key;
  const record* tx;
};

// The transactions of one date and slot in the order of adding.
template <class record>
struct payment_block {
  const char* date = nullptr;
  std::int32_t slot = 0;
  payment_totals totals;
  std::span<const grouped_transaction<record>> transactions;
};

// The blocks of a message in ascending order of dates and, within a date, of
// slots.
template <class record>
class payment_blocks {
 public:
  // `slot_of` tells the slot of a record. False, with the reason in the message,
  // when the transactions cannot be grouped. The message must stay as it is as
  // long as the blocks are used.
  template <class slot_function>
  bool group(message& msg, slot_function slot_of);

  // Makes the blocks one by one and calls a function with each and its number,
  // from 1.
  template <class block_function>
  void for_each(block_function use) const;

  // Of all blocks.
  const payment_totals& totals() const { return totals_; }

 private:
  using entry = grouped_transaction<record>;
  struct free_delete {
    void operator()(entry* entries) const { std::free(entries); }
  };
  using entry_array = std::unique_ptr<entry[], free_delete>;

  static entry_array make_entries(std::uint32_t count) {
    return entry_array(static_cast<entry*>(std::calloc(count, sizeof(entry))));
  }

  const char* date_of(const record& tx) const { return tx.date ? tx.date.c_str() : default_date_; }
  // The block that some entries begin with.
  payment_block<record> first_block(std::span<const entry> entries) const;

  const char* default_date_ = nullptr;
  entry_array entries_;
  payment_totals totals_;
};

template <class record>
template <class slot_function>
bool payment_blocks<record>::group(message& msg, slot_function slot_of) {
  if (msg.tx_count == 0) return true;
  default_date_ = msg.date.c_str();
  entries_ = make_entries(msg.tx_count);
  if (!entries_) return msg.fail("Out of memory");

  const std::span<entry> all(entries_.get(), msg.tx_count);
  const record* tx = first_transaction<record>(msg);
  for (std::uint32_t place = 0; place < msg.tx_count; ++place, tx = tx->next) {
    const char* const date = date_of(*tx);
    if (std::strlen(date) > block_key::date_length) {
      return msg.fail("Internal error (pmt not found)");
    }
    all[place] = {block_key(date, slot_of(*tx)), tx};
    totals_.add(tx->amount);
  }
  if (in_order<entry>(all)) return true;
  entry_array others = make_entries(msg.tx_count);
  if (!others) return msg.fail("Out of memory");
  const std::span<entry> ordered = order_by_key(all, std::span(others.get(), msg.tx_count));
  if (ordered.data() != entries_.get()) std::swap(entries_, others);
  return true;
}

template <class record>
payment_block<record> payment_blocks<record>::first_block(std::span<const entry> entries) const {
  const entry& first = entries.front();
  payment_block<record> block;
  block.date = date_of(*first.tx);
  block.slot = first.key.slot();
  for (const entry& candidate : entries) {
    if (candidate.key != first.key) break;
    block.totals.add(candidate.tx->amount);
  }
  block.transactions = entries.first(block.totals.count);
  return block;
}

template <class record>
template <class block_function>
void payment_blocks<record>::for_each(block_function use) const {
  std::span<const entry> left(entries_.get(), totals_.count);
  for (int number = 1; !left.empty(); ++number) {
    const payment_block<record> block = first_block(left);
    left = left.subspan(block.totals.count);
    use(block, number);
  }
}

}  // namespace tivex
