// The most memory that the process has had so far.
#pragma once

#include <sys/resource.h>

// In KiB.
inline long PeakMemory() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}
