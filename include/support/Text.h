// Text at the border between records (EUC-JP bytes) and everything else (UTF-8).
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "Types.h"

// UTF-8 of EUC-JP bytes, nothing when the bytes are not EUC-JP.
std::optional<std::string> Utf8FromEuc(std::string_view euc);
// EUC-JP of a UTF-8 text after folding of look-alikes (full-width tilde, minus, parallel, dash,
// currency signs); nothing when a character has no place in EUC-JP or the text is not UTF-8.
std::optional<std::string> EucFromUtf8(std::string_view utf8);
// Record or path bytes made fit to show: as EUC-JP when valid, else as UTF-8 when valid, else with
// every byte above 0x7F escaped as "\xNN". Always valid UTF-8.
std::string DisplayText(std::string_view bytes);
// The longest prefix of at most `limit` bytes that splits no EUC-JP character.
std::string_view CutEuc(std::string_view euc, std::size_t limit);
// Copies into a field of `size` bytes: cut without splitting a character, terminated, rest zeroed.
void CopyText(gchar* field, std::size_t size, std::string_view text);
// The text of a fixed field that may lack its terminator.
std::string_view FieldText(const gchar* field, std::size_t size);
template <std::size_t Size>
std::string_view FieldText(const gchar (&field)[Size]) {
  return FieldText(field, Size);
}

template <std::size_t Size>
void CopyText(gchar (&field)[Size], std::string_view text) {
  CopyText(field, Size, text);
}
