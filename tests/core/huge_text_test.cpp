// An error text that repeats more than an int counts.

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>

#include "support/messages.h"

// 2 GiB of address space, but not of memory.
TEST(ErrorText, IsCutAlsoOfATextThatNoPrintfCounts) {
#if defined(TIVEX_SANITIZED)
  GTEST_SKIP() << "takes too much memory under a sanitizer";
#endif
  const std::size_t piece = std::size_t{1} << 26;
  const std::size_t pieces = 33;
  const int file = memfd_create("text", 0);
  ASSERT_TRUE(file >= 0 && ftruncate(file, static_cast<off_t>(piece)) == 0);
  auto* const text = static_cast<char*>(mmap(nullptr, piece * pieces + 4096, PROT_READ | PROT_WRITE,
                                             MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
  ASSERT_NE(text, MAP_FAILED);
  for (std::size_t at = 0; at < piece * pieces; at += piece) {
    ASSERT_EQ(mmap(text + at, piece, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0),
              text + at);
  }
  std::memset(text, 'A', piece);
  const message_ptr msg = new_message(TIVEX_DIRECT_DEBIT);
  const std::string as(255, 'A');
  EXPECT_EQ(tivex_setIBAN(msg.get(), text), 0);
  EXPECT_EQ(error_of(msg), ("Invalid or unknown IBAN country code (" + as).substr(0, 255));
  EXPECT_EQ(add_alone(msg, {{text, "x"}}), 0);
  EXPECT_EQ(error_of(msg), ("Invalid transaction property '" + as).substr(0, 255));
  EXPECT_EQ(add_alone(msg, {{"smnda", text}}), 0);
  EXPECT_EQ(error_of(msg), ("Invalid value '" + as).substr(0, 255));
  munmap(text, piece * pieces + 4096);
  close(file);
}
