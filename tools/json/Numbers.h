// The number fields of packed records, which may lie at any address.
#pragma once

#include <array>
#include <cstring>

#include "Types.h"

template <std::size_t Count>
std::array<gint, Count> NumbersOf(const void* field) {
  std::array<gint, Count> numbers;
  std::memcpy(numbers.data(), field, sizeof(numbers));
  return numbers;
}
