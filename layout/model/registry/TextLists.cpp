#include <algorithm>

#include "layout/ProjectRecord.h"
#include "layout/Registry.h"
#include "layout/model/registry/RecordFile.h"
#include "support/Text.h"

namespace {

// The list for `k`; the panel's pickers count from 2. Kept: the commit counts its languages from 0,
// so the first two reach the third list and the third the first; files of existing projects have it
// so.
const gchar* ListName(gint k) {
  switch (k) {
    case 2:
      return "PtrnText1";
    case 3:
      return "PtrnText2";
    default:
      return "PtrnText3";
  }
}

}  // namespace

std::vector<PTRNTEXT> ReadPtrnText(gint k) {
  return ReadRecords<PTRNTEXT>(ProjPath, ListName(k)).value_or(std::vector<PTRNTEXT>());
}

void RegstPtrnText(const gchar* text, gint k) {
  PTRNTEXT entry{};
  CopyText(entry.text, text);
  if (entry.text[0] == '\0') return;
  const gchar* list = ListName(k);
  std::optional<std::vector<PTRNTEXT>> texts = ReadRecords<PTRNTEXT>(ProjPath, list);
  if (!texts) return;
  const bool known = std::any_of(texts->begin(), texts->end(), [&entry](const PTRNTEXT& other) {
    return FieldText(other.text) == FieldText(entry.text);
  });
  if (!known) {
    texts->push_back(entry);
    WriteRecords(ProjPath, list, *texts);
  }
}
