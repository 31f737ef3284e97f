#include <algorithm>

#include "layout/Registry.h"
#include "support/Text.h"

namespace {

constexpr gint SystemSlots = 100;

std::string_view CodeOf(const PTRNCODE& record) {
  return FieldText(record.ID_Code);
}

PTRNCODE NewCode(std::string_view code, gint slots) {
  PTRNCODE record{};
  CopyText(record.ID_Code, code);
  record.DataCount = slots;
  return record;
}

}  // namespace

PTRNCODE SystemCode() {
  return NewCode("SYSTEM", SystemSlots);
}

gint CodeSlots(gint no) {
  return std::clamp(no, 0, G_MAXINT - 1) + 1;
}

bool RegisterCode(std::vector<PTRNCODE>& registry, std::string_view code, gint no) {
  const PTRNCODE wanted = NewCode(code, CodeSlots(no));
  const std::string_view text = CodeOf(wanted);
  if (text.empty()) return false;
  const auto known = std::find_if(registry.begin(), registry.end(), [text](const PTRNCODE& record) {
    return CodeOf(record) == text;
  });
  if (known != registry.end()) {
    if (known->DataCount >= wanted.DataCount) return false;
    known->DataCount = wanted.DataCount;
    return true;
  }
  // The system's record stays first, whatever its name sorts after.
  const auto sorted = registry.begin() + (registry.empty() ? 0 : 1);
  const auto place = std::find_if(sorted, registry.end(),
                                  [text](const PTRNCODE& record) { return CodeOf(record) > text; });
  registry.insert(place, wanted);
  return true;
}
