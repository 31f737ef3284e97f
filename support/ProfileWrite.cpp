#include <cstdarg>
#include <string>

#include "support/Profile.h"
#include "support/ProfileFile.h"
#include "support/ProfileText.h"

namespace {

// Right-aligned in four columns. The blanks make a number below 0x1000 read back as 0; the runtime
// and older profiles expect this form.
std::string HexadecimalText(guint16 number) {
  gchar text[8];
  g_snprintf(text, sizeof text, "%4X", static_cast<unsigned>(number));
  return text;
}

// Joins the fields that the pointers of `args` lead to, up to a null pointer.
std::string JoinFields(const gchar* format, va_list args, gint& count) {
  std::string value;
  for (count = 0;; ++count) {
    std::string field;
    const FieldKind kind = FieldKindOf(format[count]);
    if (kind == FieldKind::None) return value;
    if (kind == FieldKind::Text) {
      const gchar* text = va_arg(args, const gchar*);
      if (text == nullptr) return value;
      field = text;
    } else if (kind == FieldKind::Decimal) {
      const gint* decimal = va_arg(args, const gint*);
      if (decimal == nullptr) return value;
      field = std::to_string(*decimal);
    } else {
      const guint16* hexadecimal = va_arg(args, const guint16*);
      if (hexadecimal == nullptr) return value;
      field = HexadecimalText(*hexadecimal);
    }
    if (count > 0) value += ',';
    value += field;
  }
}

void StoreValue(const gchar* profname, const gchar* section, const std::string& key,
                const std::string& value) {
  ChangeProfile(ProfilePath(profname), [&](std::string& profile) {
    SetProfileValue(profile, section, key, value);
    return true;
  });
}

void StoreCommented(const gchar* profname, const gchar* section, const std::string& key,
                    const gchar* text, gint culm, const gchar* comment) {
  StoreValue(profname, section, key, CommentedValue(key, text, culm, comment));
}

void DeleteKey(const gchar* profname, const gchar* section, const std::string& key) {
  ChangeProfile(ProfilePath(profname),
                [&](std::string& profile) { return DeleteProfileKey(profile, section, key); });
}

}  // namespace

gint ProfileWrite1(const gchar* profname, const gchar* section, const gchar* keyname,
                   const gchar* format, ...) {
  gint count = 0;
  va_list args;
  va_start(args, format);
  const std::string value = JoinFields(format, args, count);
  va_end(args);
  StoreValue(profname, section, keyname, value);
  return count;
}

gint ProfileWrite2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                   const gchar* format, ...) {
  gint count = 0;
  va_list args;
  va_start(args, format);
  const std::string value = JoinFields(format, args, count);
  va_end(args);
  StoreValue(profname, section, NumberedKey(keyname, no), value);
  return count;
}

void ProfileWriteInt1(const gchar* profname, const gchar* section, const gchar* keyname,
                      gint data) {
  ProfileWrite1(profname, section, keyname, "i", &data);
}

void ProfileWriteInt2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                      gint data) {
  ProfileWrite2(profname, section, keyname, no, "i", &data);
}

void ProfileWriteHexa1(const gchar* profname, const gchar* section, const gchar* keyname,
                       guint16 hexa) {
  ProfileWrite1(profname, section, keyname, "h", &hexa);
}

void ProfileWriteHexa2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                       guint16 hexa) {
  ProfileWrite2(profname, section, keyname, no, "h", &hexa);
}

void ProfileWriteAsc1(const gchar* profname, const gchar* section, const gchar* keyname,
                      const gchar* text) {
  ProfileWrite1(profname, section, keyname, "s", text);
}

void ProfileWriteAsc2(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                      const gchar* text) {
  ProfileWrite2(profname, section, keyname, no, "s", text);
}

void ProfileWrite3(const gchar* profname, const gchar* section, const gchar* keyname,
                   const gchar* text, gint culm, const gchar* comment) {
  StoreCommented(profname, section, keyname, text, culm, comment);
}

void ProfileWrite4(const gchar* profname, const gchar* section, const gchar* keyname, gint no,
                   const gchar* text, gint culm, const gchar* comment) {
  StoreCommented(profname, section, NumberedKey(keyname, no), text, culm, comment);
}

void ProfileDelete1(const gchar* profname, const gchar* section, const gchar* keyname) {
  DeleteKey(profname, section, keyname);
}

void ProfileDelete2(const gchar* profname, const gchar* section, const gchar* keyname, gint no) {
  DeleteKey(profname, section, NumberedKey(keyname, no));
}
