// Profiles: reading, setting and removing keys. Section and key come from the first two lines.
#include "fuzz/Fuzz.h"
#include "support/ProfileText.h"

namespace {

void ReadKey(const std::string& section, const std::string& key) {
  gchar text[100];
  gchar more[100];
  gint numbers[3];
  guint16 word = 0;
  ProfileRead1("", section.c_str(), key.c_str(), "ssiiih", text, more, &numbers[0], &numbers[1],
               &numbers[2], &word);
  ProfileRead2("", section.c_str(), key.c_str(), 0, "ish", &numbers[0], text, &word);
}

// What has been set reads back as far as a line's 256 bytes go, and once removed is gone.
void SetAndDelete(std::string profile, std::string_view section, std::string_view key) {
  const bool plain =
      !section.empty() && !key.empty() && key.find_first_of("[;=") == std::string_view::npos &&
      section.find_first_of(";]") == std::string_view::npos && section.size() + key.size() < 200;
  const std::string before = profile;
  SetProfileValue(profile, section, key, "12,ab");
  const bool joined =
      !before.empty() && before.back() != '\n' && !ProfileSearch(before, section, "");
  if (plain && !joined && ProfileSearch(before, section, key)) {
    Require(ProfileSearch(profile, section, key) == "12,ab");
  }
  std::size_t most = profile.size();
  while (DeleteProfileKey(profile, section, key)) {
    Require(profile.size() < most);
    most = profile.size();
  }
  Require(!ProfileSearch(profile, section, key));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  FuzzFolder::Get().Write("VarnixMaster.ini", input);
  std::string_view rest = input;
  const std::string section(TakeLine(rest));
  const std::string key(TakeLine(rest));
  ReadKey(section, key);
  ReadKey("FONT", "FONTNAME");
  ReadKey("PROJECT", "WINDOW");
  ProfileWriteAsc2("", "FONT", "FONTNAME", 3, "name");
  ProfileWrite3("", "PTRN", "PTRNSTART", "name", 60, "; comment");
  ProfileDelete1("", "PROJECT", "WINDOW");
  SetAndDelete(std::string(input), section, key);
  const std::string value = CommentedValue(key, section, 60, "; comment");
  for (std::size_t number = 0; number < 4; ++number) {
    const std::string_view field = ProfileField(value, number);
    DecimalValue(CheckedField(field, FieldKind::Decimal));
    HexadecimalValue(CheckedField(field, FieldKind::Hexadecimal));
    Require(CheckedField(field, FieldKind::Text).size() < 100);
  }
  return 0;
}
