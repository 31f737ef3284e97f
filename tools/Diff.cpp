#include "tools/Commands.h"
#include "tools/InputFile.h"
#include "tools/Report.h"
#include "tools/compare/Changes.h"

int RunDiff(const std::string& before, const std::string& after) {
  const std::optional<Layout> one = ReadLayout(before);
  const std::optional<Layout> other = ReadLayout(after);
  if (!one || !other) return ExitTrouble;
  const LayoutChanges changes = CompareLayouts(*one, *other);
  const int printed = Print(ChangesText(changes, *one, *other));
  if (printed != ExitDone) return ExitTrouble;
  return changes.None() ? ExitDone : ExitFailed;
}
