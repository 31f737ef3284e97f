// Texts in each language of the project: there, readable, and not larger than their place.
#include <algorithm>

#include "layout/ItemTypes.h"
#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

// "Other" layouts have a name and no titles.
gint TitleCount(const CheckedProject& project, const CheckedLayout& layout) {
  const gint kind = layout.Header.Parm1[HedrSlot::Kind];
  return kind == 0 || kind == 1 ? LanguageCount(project) : 1;
}

bool HasText(const PTRNDATA& item, gint languages) {
  for (gint language = 0; language < languages; ++language) {
    if (!TextOf(item, language).empty()) return true;
  }
  return false;
}

std::string LanguageText(gint language) {
  return " in language " + std::to_string(language + 1);
}

void FindMissing(const CheckedProject& project, FindingList& findings) {
  const gint languages = LanguageCount(project);
  for (const CheckedLayout& layout : project.Layouts) {
    for (gint language = 0; language < TitleCount(project, layout); ++language) {
      if (TitleOf(layout.Header, language).empty()) {
        findings.AddLayout(layout, TitleField(language), "has no title" + LanguageText(language));
      }
    }
  }
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    // A button or choice without any caption is meant so.
    if (!IsWorded(item.Type) || !HasText(item, languages)) return;
    for (gint language = 0; language < languages; ++language) {
      if (TextOf(item, language).empty()) {
        findings.AddItem(layout, item, TextField(language), "has no text" + LanguageText(language));
      }
    }
  });
}

void FindUnreadable(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    for (gint language = 0; language < LanguageCount(project); ++language) {
      if (!Utf8FromEuc(TextOf(item, language))) {
        findings.AddItem(layout, item, TextField(language),
                         Quoted(TextOf(item, language)) + " is not EUC-JP");
      }
    }
  });
}

bool UsesFont(const PTRNDATA& item, gint languages) {
  return ItemTypeOf(item.Type).Font != NoSlot && (!IsWorded(item.Type) || HasText(item, languages));
}

bool AnyFont(const CheckedProject& project, gint language) {
  for (gint font = 0; font < FontCount; ++font) {
    if (project.Surroundings.FontExists(language, font)) return true;
  }
  return false;
}

void FindMissingFonts(const CheckedProject& project, FindingList& findings) {
  for (gint language = 0; language < LanguageCount(project); ++language) {
    // Told once; that every text then lacks its font says nothing more.
    if (!AnyFont(project, language)) {
      findings.AddProject("FONTNAME", "the profile has no fonts" + LanguageText(language));
      continue;
    }
    ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
      if (!UsesFont(item, LanguageCount(project))) return;
      const gint slot = ItemTypeOf(item.Type).Font;
      const gint font = item.Parm[slot];
      if (!project.Surroundings.FontExists(language, font)) {
        findings.AddItem(layout, item, ParameterField(item, slot),
                         "there is no font " + std::to_string(font) + LanguageText(language));
      }
    });
  }
}

std::string Overrun(SIZE excess, const char* place) {
  const std::string dots = excess.cx > 0 ? std::to_string(excess.cx) + " dots too wide for "
                                         : std::to_string(excess.cy) + " dots too high for ";
  return "is " + dots + place;
}

// By how much a button's caption passes the room between its borders.
SIZE ButtonExcess(const PTRNDATA& item, SIZE caption) {
  const gint64 border = item.Parm[ButtonSlot::BorderWidth];
  const bool placed = item.Parm[ButtonSlot::TextPlacement] == 1;
  const gint64 start = placed ? gint64{item.Parm[ButtonSlot::TextOffset]} : border;
  const gint64 width = gint64{item.Point2.x} - item.Point1.x;
  const gint64 height = gint64{item.Point2.y} - item.Point1.y;
  return {static_cast<gint>(std::clamp<gint64>(start + caption.cx + border - width, 0, 1 << 20)),
          static_cast<gint>(std::clamp<gint64>(caption.cy + 2 * border - height, 0, 1 << 20))};
}

// By how much something of this extent at an anchor passes the layout's right or lower edge.
SIZE LayoutExcess(const PTRNHEDR& header, const POINT& anchor, SIZE extent) {
  const gint64 right = gint64{anchor.x} + extent.cx - header.Parm1[HedrSlot::Width];
  const gint64 below = gint64{anchor.y} + extent.cy - header.Parm1[HedrSlot::Height];
  return {static_cast<gint>(std::clamp<gint64>(right, 0, 1 << 20)),
          static_cast<gint>(std::clamp<gint64>(below, 0, 1 << 20))};
}

void CheckItemExtent(const CheckedProject& project, const CheckedLayout& layout,
                     const PTRNDATA& item, gint language, FindingList& findings) {
  const bool worded = IsWorded(item.Type);
  const std::string field = worded ? TextField(language) : ParameterField(item, TextSlot::Length);
  const std::string where = worded ? LanguageText(language) : "";
  if (ItemTypeOf(item.Type).Texts == ItemTexts::Caption) {
    const std::string caption(TextOf(item, language));
    if (caption.empty()) return;
    const SIZE excess = ButtonExcess(
        item,
        project.Surroundings.TextExtent(language, item.Parm[ButtonSlot::Font], caption.c_str()));
    if (excess.cx > 0 || excess.cy > 0) {
      findings.AddItem(layout, item, field, Overrun(excess, "its button") + where);
    }
  } else if (!HasTwoPoints(item.Type)) {
    const SIZE excess = LayoutExcess(layout.Header, POINT{item.Point1},
                                     project.Surroundings.ItemExtent(language, item));
    if (excess.cx > 0 || excess.cy > 0) {
      findings.AddItem(layout, item, field, Overrun(excess, "the layout") + where);
    }
  }
}

void CheckTitleExtent(const CheckedProject& project, const CheckedLayout& layout, gint language,
                      FindingList& findings) {
  const PTRNHEDR& header = layout.Header;
  const std::string title(TitleOf(header, language));
  if (header.Parm1[HedrSlot::TitleHeight] <= 0 || title.empty()) return;
  const SIZE extent =
      project.Surroundings.TextExtent(language, header.Parm1[HedrSlot::TitleFont], title.c_str());
  const SIZE room{header.Parm1[HedrSlot::Width], header.Parm1[HedrSlot::TitleHeight]};
  const SIZE excess{std::max(extent.cx - room.cx, 0), std::max(extent.cy - room.cy, 0)};
  if (excess.cx > 0 || excess.cy > 0) {
    findings.AddLayout(layout, TitleField(language),
                       Overrun(excess, "the title area") + LanguageText(language));
  }
}

// Language by language, since each has fonts of its own to load.
void FindOverruns(const CheckedProject& project, FindingList& findings) {
  for (gint language = 0; language < LanguageCount(project); ++language) {
    for (const CheckedLayout& layout : project.Layouts) {
      if (language < TitleCount(project, layout)) {
        CheckTitleExtent(project, layout, language, findings);
      }
    }
    ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
      CheckItemExtent(project, layout, item, language, findings);
    });
  }
}

constexpr CheckRule Rules[] = {
    {"text-missing", "a text or title lacks a language that the project has", FindMissing},
    {"text-unreadable", "a text is not EUC-JP", FindUnreadable},
    {"font-missing", "a text is shown in a font that does not exist", FindMissingFonts},
    {"text-overruns", "a text is larger than its button, title area or layout", FindOverruns},
};

}  // namespace

std::span<const CheckRule> TextRules() {
  return Rules;
}
