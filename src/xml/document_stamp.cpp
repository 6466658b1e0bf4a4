#include "xml/document_stamp.h"

#include "core/bounded_format.h"
#include "platform/platform.h"

namespace tivex {

constinit std::atomic<std::uint32_t> msgid_counter = 0;

bool ensure_message_id(message& msg, std::time_t moment) {
  if (msg.message_id) return true;
  const platform::calendar_time at = platform::local_calendar(moment);
  // The product wraps at 32 bits before the counter is added.
  const std::uint32_t number = (platform::process_id() * 100U + msgid_counter++) % 10'000'000U;
  char id[128];
  bounded_format(id, sizeof id, "SEPA-%04i%02i%02i%02i%02i%02i-%07u", at.year, at.month, at.day,
                 at.hour, at.minute, at.second, number);
  return msg.message_id.assign(id);
}

bool ensure_date(message& msg) {
  if (msg.date) return true;
  const platform::calendar_time today = platform::local_calendar(platform::now());
  char date[64];
  bounded_format(date, sizeof date, "%04d-%02d-%02d", today.year, today.month, today.day);
  return msg.date.assign(date);
}

void format_creation_time(creation_text& out, std::time_t moment) {
  const platform::calendar_time at = platform::utc_calendar(moment);
  bounded_format(out, sizeof out, "%04i-%02i-%02iT%02i:%02i:%02iZ", at.year, at.month, at.day,
                 at.hour, at.minute, at.second);
}

}  // namespace tivex
