#include <cstdarg>
#include <string>

#include "support/Profile.h"
#include "support/ProfileFile.h"
#include "support/ProfileText.h"
#include "support/Text.h"

namespace {

gchar ResultText[256];

// Reads the fields into the pointers of `args`, up to a null pointer.
gint ReadFields(const gchar* profname, const gchar* section, const std::string& key,
                const gchar* format, va_list args) {
  const std::string profile = LoadProfile(ProfilePath(profname)).value_or("");
  const std::string value = ProfileSearch(profile, section, key).value_or("");
  gint count = 0;
  for (std::size_t number = 0;; ++number) {
    const FieldKind kind = FieldKindOf(format[number]);
    if (kind == FieldKind::None) return count;
    const std::string_view field = CheckedField(ProfileField(value, number), kind);
    if (kind == FieldKind::Text) {
      gchar* text = va_arg(args, gchar*);
      if (text == nullptr) return count;
      CopyText(text, field.size() + 1, field);
    } else if (kind == FieldKind::Decimal) {
      gint* decimal = va_arg(args, gint*);
      if (decimal == nullptr) return count;
      *decimal = DecimalValue(field);
    } else {
      guint16* hexadecimal = va_arg(args, guint16*);
      if (hexadecimal == nullptr) return count;
      *hexadecimal = HexadecimalValue(field);
    }
    if (!field.empty()) ++count;
  }
}

}  // namespace

gint ProfileRead1(const gchar* profname, const gchar* section, const gchar* keyname,
                  const gchar* format, ...) {
  va_list args;
  va_start(args, format);
  const gint count = ReadFields(profname, section, keyname, format, args);
  va_end(args);
  return count;
}

gint ProfileRead2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                  const gchar* format, ...) {
  va_list args;
  va_start(args, format);
  const gint count = ReadFields(profname, section, NumberedKey(keyname, no), format, args);
  va_end(args);
  return count;
}

gint ProfileReadInt1(const gchar* profname, const gchar* section, const gchar* keyname) {
  gint data = 0;
  ProfileRead1(profname, section, keyname, "i", &data);
  return data;
}

gint ProfileReadInt2(const gchar* profname, const gchar* section, const gchar* keyname, gint no) {
  gint data = 0;
  ProfileRead2(profname, section, keyname, no, "i", &data);
  return data;
}

guint16 ProfileReadHex1(const gchar* profname, const gchar* section, const gchar* keyname) {
  guint16 data = 0;
  ProfileRead1(profname, section, keyname, "h", &data);
  return data;
}

guint16 ProfileReadHex2(const gchar* profname, const gchar* section, const gchar* keyname,
                        gint no) {
  guint16 data = 0;
  ProfileRead2(profname, section, keyname, no, "h", &data);
  return data;
}

gchar* ProfileReadAsc1(const gchar* profname, const gchar* section, const gchar* keyname) {
  ProfileRead1(profname, section, keyname, "s", ResultText);
  return ResultText;
}

gchar* ProfileReadAsc2(const gchar* profname, const gchar* section, const gchar* keyname, gint no) {
  ProfileRead2(profname, section, keyname, no, "s", ResultText);
  return ResultText;
}
