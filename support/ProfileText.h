// The text of a profile: finding, setting and removing keys, and the fields of a value.
#pragma once

#include <glib.h>

#include <optional>
#include <string>
#include <string_view>

// The key's value without comment and trailing blanks, nothing when section or key is missing.
std::optional<std::string> ProfileSearch(std::string_view profile, std::string_view section,
                                         std::string_view key);
// Replaces the key's line, or puts it first into its section, which is made when it is missing.
void SetProfileValue(std::string& profile, std::string_view section, std::string_view key,
                     std::string_view value);
// Removes the key's line; false when there is none.
bool DeleteProfileKey(std::string& profile, std::string_view section, std::string_view key);

// A value of one text and a comment that begins at byte column `column` of the key's line, or two
// blanks behind a text that reaches past it.
std::string CommentedValue(std::string_view key, std::string_view text, gint column,
                           std::string_view comment);

enum class FieldKind { None, Text, Decimal, Hexadecimal };

// The kind that a letter of a format names, None for any other letter and the format's end.
FieldKind FieldKindOf(char letter);
// Field `number` of a value, "" when the value has fewer.
std::string_view ProfileField(std::string_view value, std::size_t number);
// The field as far as its kind allows: a text cut at 99 bytes, a number only when it is all digits.
std::string_view CheckedField(std::string_view field, FieldKind kind);
// A field that is a text.
inline std::string_view ProfileTextField(std::string_view value, std::size_t number) {
  return CheckedField(ProfileField(value, number), FieldKind::Text);
}

// Numbers of checked fields; a decimal too large for its type is the type's largest.
gint DecimalValue(std::string_view digits);
// Takes the first four digits alone.
guint16 HexadecimalValue(std::string_view digits);
