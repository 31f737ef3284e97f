// What the rules are made of.
#pragma once

#include <string_view>

#include "layout/ShownTexts.h"
#include "project/check/Check.h"

// Takes the findings of one rule.
class FindingList {
 public:
  explicit FindingList(const char* code) : code_(code) {}

  void AddProject(std::string field, std::string message);
  void AddLayout(const CheckedLayout& layout, std::string field, std::string message);
  // `item` is one of the layout's own items.
  void AddItem(const CheckedLayout& layout, const PTRNDATA& item, std::string field,
               std::string message);
  // A layout that could not be loaded.
  void AddFile(const std::string& name, std::string message);

  std::vector<Finding> Take() { return std::move(findings_); }

 private:
  const char* code_;
  std::vector<Finding> findings_;
};

template <typename Visit>
void ForEachItem(const CheckedProject& project, Visit visit) {
  for (const CheckedLayout& layout : project.Layouts) {
    for (const PTRNDATA& item : layout.Items) visit(layout, item);
  }
}

// Number of languages (1..3) and of colour systems (2 or 4) that the project has.
gint LanguageCount(const CheckedProject& project);
gint SystemCount(const CheckedProject& project);
bool LayoutExists(const CheckedProject& project, std::string_view name);
// The fields of an item's text and of a header's title in a language 0..2.
std::string TextField(gint language);
std::string TitleField(gint language);
// The name of an item's parameter; "Parm" for a slot without one.
std::string ParameterField(const PTRNDATA& item, gint slot);
// Whether items of this type show texts of their own.
bool IsWorded(gint type);
// Whether a parameter is set that turns something on; true without such a slot.
bool IsOn(const PTRNDATA& item, gint slot);
// A colour of the item in a colour system; `slot` is the first one of its parameter.
gint ColourIn(const PTRNDATA& item, gint slot, gint system);
// Record bytes in double quotes, fit to show on one line.
std::string Quoted(std::string_view bytes);

// The families, one file each.
std::span<const CheckRule> FileRules();
std::span<const CheckRule> ScreenRules();
std::span<const CheckRule> ItemRules();
std::span<const CheckRule> CodeRules();
std::span<const CheckRule> SourceRules();
std::span<const CheckRule> TextRules();
std::span<const CheckRule> PictureRules();
std::span<const CheckRule> ColourRules();
std::span<const CheckRule> LookRules();
