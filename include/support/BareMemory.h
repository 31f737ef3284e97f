// Memory for large arrays of plain records: elements that are added without a value stay as the
// memory is, and blocks of many pages come in large pages where the system has them.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>

// At least `bytes` bytes, or std::bad_alloc.
void* TakeBareMemory(std::size_t bytes);
void GiveBareMemory(void* memory) noexcept;

template <typename Record>
struct BareMemory {
  static_assert(std::is_trivially_copyable_v<Record>);
  using value_type = Record;

  BareMemory() = default;
  template <typename Other>
  explicit BareMemory(const BareMemory<Other>& /*other*/) {}

  Record* allocate(std::size_t count) {
    if (count > static_cast<std::size_t>(-1) / 2 / sizeof(Record)) throw std::bad_alloc();
    return static_cast<Record*>(TakeBareMemory(count * sizeof(Record)));
  }
  void deallocate(Record* records, std::size_t /*count*/) noexcept { GiveBareMemory(records); }
  template <typename Element>
  void construct(Element* place) {
    ::new (static_cast<void*>(place)) Element;
  }
  template <typename Element, typename... Arguments>
  void construct(Element* place, Arguments&&... arguments) {
    ::new (static_cast<void*>(place)) Element(std::forward<Arguments>(arguments)...);
  }
  bool operator==(const BareMemory&) const { return true; }
};
