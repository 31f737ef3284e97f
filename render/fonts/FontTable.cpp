#include "render/FontTable.h"

#include "support/Profile.h"
#include "support/ProfileFile.h"
#include "support/ProfileText.h"
#include "support/Resource.h"
#include "support/Text.h"

namespace {

// Copies UTF-8, cut at the end of a character.
void CopyDisplayText(gchar* field, gsize size, const std::string& utf8) {
  g_strlcpy(field, utf8.c_str(), size);
  const gchar* end = field;
  g_utf8_validate(field, -1, &end);
  field[end - field] = '\0';
}

void ReadFont(std::string_view profile, gint font) {
  const std::string value =
      ProfileSearch(profile, "FONT", NumberedKey("FONTNAME", Language * FontCount + font))
          .value_or("");
  const std::string_view name = ProfileTextField(value, 0);
  const std::string descriptor(ProfileTextField(value, 1));
  FontNameList[font] = FontList[font];
  CopyDisplayText(FontList[font], sizeof FontList[font], DisplayText(name));
  g_strlcpy(FontName[font], descriptor.c_str(), sizeof FontName[font]);
  const bool named = !name.empty() && !descriptor.empty();
  FontHeight[font] = named ? FontDescriptorHeight(descriptor.c_str()) : 0;
}

}  // namespace

void FontDataInit(gint mode) {
  if (mode != 0) Language = ProfileReadInt1("", "VARNIXPACK", "LANGUAGE");
  if (Language < 0 || Language > 2) Language = 0;
  const std::string profile = LoadProfile(ProfilePath("")).value_or("");
  for (gint font = 0; font < FontCount; ++font) ReadFont(profile, font);
  SetDrawFont();
}
