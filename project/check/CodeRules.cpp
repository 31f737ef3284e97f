// Identification codes and the registry that numbers them.
#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <tuple>

#include "layout/ItemTypes.h"
#include "layout/Registry.h"
#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

std::string_view CodeOf(const PTRNDATA& item) {
  return FieldText(item.ID_Code);
}

bool NeedsCode(const PTRNDATA& item) {
  const bool sendsMessage = item.ID_Type >= 1 && item.ID_Type <= 4;
  return ItemTypeOf(item.Type).NeedsCode || sendsMessage;
}

void FindMissing(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    if (NeedsCode(item) && CodeOf(item).empty()) {
      findings.AddItem(layout, item, "ID_Code", "needs an identification code");
    }
  });
}

// The tool box examines the first character only; the generated header needs all of them.
bool IsIdentifier(std::string_view code) {
  return !g_ascii_isdigit(code.front()) && std::all_of(code.begin(), code.end(), [](char c) {
    return c == '_' || g_ascii_isalnum(c);
  });
}

void FindMalformed(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    const std::string_view code = CodeOf(item);
    if (!code.empty() && !IsIdentifier(code)) {
      findings.AddItem(layout, item, "ID_Code", Quoted(code) + " is no identifier");
    }
  });
}

// A macro of such a name would change the generated skeleton or the headers around it.
constexpr std::string_view Reserved[] = {
    "BOOL",     "CPtrnDisp", "FALSE",    "GetPtrnWnd", "NULL",    "TRUE",      "UserExit",
    "UserInit", "UserTimr",  "auto",     "bool",       "break",   "case",      "catch",
    "char",     "class",     "const",    "continue",   "default", "delete",    "do",
    "double",   "else",      "enum",     "explicit",   "extern",  "false",     "float",
    "for",      "friend",    "goto",     "if",         "inline",  "int",       "long",
    "name",     "namespace", "new",      "operator",   "private", "protected", "public",
    "register", "return",    "short",    "signed",     "sizeof",  "static",    "strcmp",
    "struct",   "switch",    "template", "this",       "throw",   "true",      "try",
    "typedef",  "typename",  "union",    "unsigned",   "using",   "virtual",   "void",
    "volatile", "while"};
static_assert(std::is_sorted(std::begin(Reserved), std::end(Reserved)));

void FindReserved(const CheckedProject& project, FindingList& findings) {
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    if (std::binary_search(std::begin(Reserved), std::end(Reserved), CodeOf(item))) {
      findings.AddItem(layout, item, "ID_Code",
                       Quoted(CodeOf(item)) + " means something else in the generated sources");
    }
  });
}

// What a code stands for, index = ItemData.
constexpr std::array<const char*, ItemDataCount> Kinds = {
    "a display state", "a number", "a text", "a command", "a choice", "a switch"};

const char* KindOf(gint type) {
  return Kinds[static_cast<std::size_t>(ItemTypeOf(type).Data)];
}

void FindMixedKinds(const CheckedProject& project, FindingList& findings) {
  std::map<std::string_view, std::string> kinds;
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    if (CodeOf(item).empty()) return;
    const std::string kind = KindOf(item.Type);
    const std::string& first = kinds.emplace(CodeOf(item), kind).first->second;
    if (first != kind) {
      findings.AddItem(
          layout, item, "ID_Code",
          Quoted(CodeOf(item)) + " stands for " + kind + " here and for " + first + " elsewhere");
    }
  });
}

// The radio buttons of one code and identification number are a group.
void FindDoubleRadioNumbers(const CheckedProject& project, FindingList& findings) {
  for (const CheckedLayout& layout : project.Layouts) {
    std::set<std::tuple<std::string_view, gint, gint>> seen;
    for (const PTRNDATA& item : layout.Items) {
      if (ItemTypeOf(item.Type).Data != ItemData::Choice || CodeOf(item).empty()) continue;
      const gint number = item.Parm[ChoiceSlot::Number];
      if (!seen.emplace(CodeOf(item), +item.ID_No, number).second) {
        findings.AddItem(layout, item, ParameterField(item, ChoiceSlot::Number),
                         "number " + std::to_string(number) + " is double in the group of " +
                             Quoted(CodeOf(item)));
      }
    }
  }
}

// What the registry lacks for an item; "" when nothing.
std::string Lack(const std::map<std::string_view, gint>& slots, const PTRNDATA& item) {
  const auto entry = slots.find(CodeOf(item));
  if (entry == slots.end()) return Quoted(CodeOf(item)) + " is not in the code registry";
  if (entry->second >= CodeSlots(item.ID_No)) return "";
  return Quoted(CodeOf(item)) + " has " + std::to_string(entry->second) +
         " slots in the code registry, number " + std::to_string(item.ID_No) + " needs " +
         std::to_string(CodeSlots(item.ID_No));
}

void FindRegistryBehind(const CheckedProject& project, FindingList& findings) {
  std::map<std::string_view, gint> slots;
  for (const PTRNCODE& record : project.Registry) {
    slots.emplace(FieldText(record.ID_Code), +record.DataCount);
  }
  ForEachItem(project, [&](const CheckedLayout& layout, const PTRNDATA& item) {
    if (CodeOf(item).empty()) return;
    std::string lack = Lack(slots, item);
    if (!lack.empty()) findings.AddItem(layout, item, "ID_Code", std::move(lack));
  });
}

constexpr CheckRule Rules[] = {
    {"code-missing", "an item that needs an identification code has none", FindMissing},
    {"code-malformed", "an identification code is no identifier", FindMalformed},
    {"code-reserved", "an identification code is a word of the generated sources", FindReserved},
    {"code-kind-mixed", "one code is used by items of different kinds", FindMixedKinds},
    {"radio-number-double", "two radio buttons of a group have the same number",
     FindDoubleRadioNumbers},
    {"registry-behind", "the code registry lacks a code or slots of it", FindRegistryBehind},
};

}  // namespace

std::span<const CheckRule> CodeRules() {
  return Rules;
}
