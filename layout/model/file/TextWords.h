// The short texts of a layout file: looked through and copied a word at a time they take half the
// time that a search and a copy take.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#include "Types.h"

using TextWord = std::uint64_t;
static_assert(std::endian::native == std::endian::little);

inline TextWord WordAt(const gchar* place) {
  TextWord word;
  std::memcpy(&word, place, sizeof word);
  return word;
}

inline void PutWord(gchar* place, TextWord word) {
  std::memcpy(place, &word, sizeof word);
}

// Not 0 when the word has a zero byte; the lowest bit set is then the high bit of the first.
constexpr TextWord ZeroByteBits(TextWord word) {
  constexpr TextWord Ones = 0x0101010101010101;
  return (word - Ones) & ~word & (Ones << 7);
}

// Number of the word's bytes before its first zero byte, for a word that has one.
constexpr std::size_t BytesBeforeZero(TextWord word) {
  return static_cast<std::size_t>(std::countr_zero(ZeroByteBits(word))) / 8;
}

// Copies whole words up to the one with the text's terminator, or the last that ends within `size`
// bytes; the number of bytes copied.
inline std::size_t CopyFullWords(gchar* to, const gchar* from, std::size_t size) {
  std::size_t at = 0;
  for (; at + sizeof(TextWord) <= size; at += sizeof(TextWord)) {
    const TextWord word = WordAt(from + at);
    if (ZeroByteBits(word) != 0) break;
    PutWord(to + at, word);
  }
  return at;
}
