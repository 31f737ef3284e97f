// Questions that several rules ask.
#include <algorithm>

#include "layout/ItemTypes.h"
#include "layout/ProjectSlots.h"
#include "project/check/Rules.h"
#include "support/Text.h"

gint LanguageCount(const CheckedProject& project) {
  return std::clamp(gint{project.Settings.Parm1[ProjectSlot::Languages]}, 0, 2) + 1;
}

gint SystemCount(const CheckedProject& project) {
  return project.Settings.Parm1[ProjectSlot::ColourSystems] == 0 ? 2 : 4;
}

bool LayoutExists(const CheckedProject& project, std::string_view name) {
  const auto bears = [name](const CheckedLayout& layout) { return layout.Name == name; };
  return std::any_of(project.Layouts.begin(), project.Layouts.end(), bears) ||
         std::find(project.Unreadable.begin(), project.Unreadable.end(), name) !=
             project.Unreadable.end();
}

std::string TextField(gint language) {
  return "Text" + std::to_string(language + 1);
}

std::string TitleField(gint language) {
  return "PtrnName" + std::to_string(language + 1);
}

std::string ParameterField(const PTRNDATA& item, gint slot) {
  const Parameter* parameter = FindParameter(item.Type, slot);
  return parameter == nullptr ? "Parm" : parameter->Name;
}

bool IsWorded(gint type) {
  const ItemTexts texts = ItemTypeOf(type).Texts;
  return texts == ItemTexts::Words || texts == ItemTexts::Caption;
}

bool IsOn(const PTRNDATA& item, gint slot) {
  return slot == NoSlot || item.Parm[slot] != 0;
}

gint ColourIn(const PTRNDATA& item, gint slot, gint system) {
  const Parameter* colour = FindParameter(item.Type, slot);
  return item.Parm[slot + system % (colour == nullptr ? 1 : colour->Count())];
}

std::string Quoted(std::string_view bytes) {
  std::string text = "\"";
  for (const char c : DisplayText(bytes)) {
    constexpr char Digits[] = "0123456789ABCDEF";
    if (g_ascii_iscntrl(c)) {
      text += {'\\', 'x', Digits[c >> 4], Digits[c & 15]};
    } else {
      text += c;
    }
  }
  return text + "\"";
}
