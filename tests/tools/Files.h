// Files of the program put together by hand, byte by byte.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

// A little-endian number of four bytes.
inline std::string Int(int number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>(static_cast<unsigned>(number) >> shift & 0xff);
  }
  return bytes;
}

inline std::string Ints(std::initializer_list<int> numbers, std::size_t count) {
  std::string bytes;
  for (const int number : numbers) bytes += Int(number);
  bytes.resize(4 * count, '\0');
  return bytes;
}

// A text field filled up with zeros.
inline std::string Field(std::string_view text, std::size_t size) {
  std::string bytes(text);
  bytes.resize(size, '\0');
  return bytes;
}

// A text of a text block, with its terminator.
inline std::string Terminated(std::string_view text) {
  return std::string(text) + '\0';
}

// "日本" in EUC-JP.
inline constexpr std::string_view NihonEuc = "\xC6\xFC\xCB\xDC";

// A child window of 320 x 200 with a line and a button; its first title is "日本".
inline std::string SmallLayout() {
  return Int(1001) + Ints({1, 320, 200}, 30) + Ints({2, 0, 3, 4}, 10) + Field(NihonEuc, 82) +
         Field("Two", 82) + Field("", 82) + Field("logo.bmp", 22) + Field("", 22) + Int(2) +
         Int(5 + 24) + Int(1) +
         // the line
         Int(2) + Ints({10, 20, 110, 20, 7, 7, 7, 7, 0, 0, 0, 0, 0, 0, 1, 3}, 30) + Int(0) +
         Int(0) + Int(0) +
         // the button
         Int(9) + Ints({30, 40, 90, 70, 1, 2, 3, 4, 5}, 30) + Int(5) + Int(12) + Int(1) +
         // texts
         std::string(5, '\0') + Terminated(NihonEuc) + Terminated("Go") + Terminated("") +
         Terminated("Child") + Terminated("START_A1");
}
