#include "support/BareMemory.h"

#include <sys/mman.h>

#include <cstdlib>

namespace {

constexpr std::size_t LargePage = std::size_t{2} << 20;

}  // namespace

void* TakeBareMemory(std::size_t bytes) {
  if (bytes < LargePage) {
    if (void* memory = std::malloc(bytes)) return memory;
    throw std::bad_alloc();
  }
  const std::size_t whole = (bytes + LargePage - 1) / LargePage * LargePage;
  void* memory = std::aligned_alloc(LargePage, whole);
  if (memory == nullptr) throw std::bad_alloc();
  // Touching memory for the first time costs more than filling it; large pages are touched seldom.
  madvise(memory, whole, MADV_HUGEPAGE);
  return memory;
}

void GiveBareMemory(void* memory) noexcept {
  std::free(memory);
}
