// Memory runs out at every place, or nowhere: results stay as prescribed, nothing is
// lost, and no released block holds account data.
#include <time.h>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "jobs.h"
#include "library.h"

namespace {

int faults = 0;

void expect(bool right, const job& tested, const char* what, const std::string& seen = "",
            const std::string& usual = "") {
  if (right || ++faults > 30) return;  // enough to see what is wrong
  const auto differ = std::mismatch(seen.begin(), seen.end(), usual.begin(), usual.end()).first;
  std::fprintf(stderr, "%s, allocation %zu%s: %s: %.100s\n", tested.name.c_str(), current.fail_at,
               current.all_later ? " and later" : "", what, &*differ);
}

bool among(const std::string& text, const std::vector<std::string>& texts) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// Runs the job with the current disturbance; false when no allocation failed.
bool run_once(const job& tested, const outcome& usual) {
  call(tivex_cleanup);  // what is made on first use is made anew
  tzset();
  preload().failed = false;
  const long text_before = preload().blocks_with_text;
  const long blocks_before = preload().live_blocks;
  {
    const outcome seen = tested.run();
    const bool may_differ = preload().failed;
    const bool same = seen.during == usual.during;
    expect(same || (may_differ && among(seen.during, tested.failures)), tested,
           "came out during the call", seen.during, usual.during);
    expect(seen.after == usual.after || (may_differ && same && among(seen.after, tested.losses)),
           tested, "came out afterwards", seen.after, usual.after);
  }
  // The C library keeps what it read of the time zone, once there is memory for it.
  tzset();
  call(tivex_cleanup);
  expect(preload().live_blocks == blocks_before, tested, "blocks are left or lost",
         std::to_string(preload().live_blocks - blocks_before));
  expect(preload().blocks_with_text == text_before, tested, "released blocks with account data");
  return preload().failed;
}

void run_at_every_place(const job& tested) {
  current = {};
  const outcome usual = tested.run();
  expect(usual.during.rfind("none", 0) != 0 && usual.after.find("none ") == usual.after.npos,
         tested, "fails undisturbed", usual.during + usual.after);
  run_once(tested, usual);
  for (const bool all_later : {false, true}) {
    for (current = {1, all_later}; run_once(tested, usual); ++current.fail_at) {
    }
    expect(current.fail_at > 1 || tested.failures.empty(), tested, "allocates nothing");
  }
}

// The watcher sees bytes and wide characters, in blocks released and cut.
void expect_watching() {
  void* (*volatile const resize)(void*, std::size_t) = std::realloc;
  const std::string_view text = "watched text";
  const auto found = [&](std::size_t width, std::size_t place, std::size_t kept) {
    const long before = preload().blocks_with_text;
    const inside_library inside;
    auto* const block = static_cast<char*>(resize(nullptr, 4096));
    std::memset(block, 0, 4096);
    for (std::size_t at = 0; at < text.size(); ++at) block[place + at * width] = text[at];
    std::free(resize(block, kept));
    return preload().blocks_with_text - before;
  };
  const job self = {"the watcher", nullptr};
  for (const std::size_t width : {std::size_t{1}, sizeof(wchar_t)}) {
    expect(found(width, 0, 5000) > 0, self, "overlooks a released text");
    expect(found(width, 2000, 64) == 1, self, "overlooks a text that is cut off");
  }
  expect(found(2, 0, 64) == 0, self, "sees what is not there");
}

}  // namespace

// Arguments: a locale, and "moving" for a realloc that never keeps a block's place.
int main(int count, char** arguments) {
  const char* const locale = count > 1 ? arguments[1] : "C";
  if (std::setlocale(LC_ALL, locale) == nullptr) {
    std::fprintf(stderr, "The locale %s is missing\n", locale);
    return 1;
  }
  preload().always_move = count > 2 && std::string_view(arguments[2]) == "moving";
  for (const char* const text :
       {"watched text", "0417164300", "0234573201", "6011117947", "0532013000", "Quendolina",
        "Ottokar", "ABNANL2A", "abnanl2a", "BKAUATWW", "UBSWCHZH", "COBADEFF", "cobadeff",
        "Hafenquartier", "0000012345", "55021804198", "532013000", "9290701"}) {
    preload_watch(text);
  }
  expect_watching();
  const std::vector<job> jobs = all_jobs();
  for (const job& each : jobs) run_at_every_place(each);
  std::printf("%zu jobs, %d faults\n", jobs.size(), faults);
  return faults == 0 ? 0 : 1;
}
