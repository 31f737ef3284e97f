#include "PtrnMisc.h"
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

void ReadFont(gint font) {
  gchar name[100];
  gchar descriptor[100];
  ProfileRead2("", "FONT", "FONTNAME", Language * FontCount + font, "ss", name, descriptor);
  FontNameList[font] = FontList[font];
  CopyDisplayText(FontList[font], sizeof FontList[font], DisplayText(name));
  g_strlcpy(FontName[font], descriptor, sizeof FontName[font]);
  const bool named = name[0] != '\0' && descriptor[0] != '\0';
  FontHeight[font] = named ? FontDescriptorHeight(descriptor) : 0;
}

}  // namespace

void FontDataInit(gint mode) {
  if (mode != 0) {
    Language = ProfileReadInt1("", "VARNIXPACK", "LANGUAGE");
  }
  if (Language < 0 || Language > 2) {
    Language = 0;
  }
  for (gint font = 0; font < FontCount; ++font) {
    ReadFont(font);
  }
  SetDrawFont();
}
