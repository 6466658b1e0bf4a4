// The most memory that the process held at once since the counting began, beyond what
// it held then. Pages that the system gave count, so blocks that the allocator keeps
// are given back first.
#pragma once

#include <malloc.h>

#include <fstream>
#include <string>

class peak_memory {
 public:
  peak_memory() {
    malloc_trim(0);
    // The system forgets the highest number so far.
    std::ofstream("/proc/self/clear_refs") << "5";
    at_start_ = status_bytes("VmRSS:");
  }

  double bytes() const { return status_bytes("VmHWM:") - at_start_; }

 private:
  static double status_bytes(const std::string& wanted) {
    std::ifstream status("/proc/self/status");
    std::string name;
    while (status >> name && name != wanted) status.ignore(1000, '\n');
    double kibibytes = 0;
    status >> kibibytes;
    return kibibytes * 1024;
  }

  double at_start_ = 0;
};
