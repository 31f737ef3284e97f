// Records written out by hand: little-endian numbers and fixed text fields, one after the other.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

class Bytes {
 public:
  Bytes& Int(std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    for (int shift = 0; shift < 32; shift += 8) bytes_ += static_cast<char>(bits >> shift & 0xFF);
    return *this;
  }
  Bytes& Ints(std::initializer_list<std::int32_t> values) {
    for (const std::int32_t value : values) Int(value);
    return *this;
  }
  // first, first + 1, ... `count` numbers.
  Bytes& Run(std::int32_t first, int count) {
    for (int i = 0; i < count; ++i) Int(first + i);
    return *this;
  }
  Bytes& Zeros(std::size_t count) {
    bytes_.append(count, '\0');
    return *this;
  }
  // A text, then zeros up to the width of its field.
  Bytes& Field(std::string_view text, std::size_t width) {
    bytes_.append(text);
    return Zeros(width - text.size());
  }
  // A text with its terminator.
  Bytes& Text(std::string_view text) { return Field(text, text.size() + 1); }
  Bytes& Raw(std::string_view bytes) {
    bytes_.append(bytes);
    return *this;
  }

  const std::string& Str() const { return bytes_; }

 private:
  std::string bytes_;
};
