#include <array>
#include <cstring>
#include <new>
#include <string>
#include <vector>

#include "Constant.h"
#include "PtrnMisc.h"
#include "layout/Guards.h"
#include "layout/Store.h"
#include "support/FileTools.h"

namespace {

std::array<std::string_view, 5> TextsOf(const PTRNDATA& item) {
  return {FieldText(item.Text1), FieldText(item.Text2), FieldText(item.Text3),
          FieldText(item.ID_Name), FieldText(item.ID_Code)};
}

// The store's items in the order of the file: by type in painting order, then by place. Items of no
// known type are left out.
std::vector<const PTRNDATA*> ItemsInFileOrder() {
  std::array<std::vector<const PTRNDATA*>, 16> byType;
  const gint count = GetPtrnCount();
  for (gint no = 0; no < count; ++no) {
    const PTRNDATA* item = ViewPtrnData(no);
    if (IsItemType(item->Type)) {
      byType[static_cast<std::size_t>(item->Type)].push_back(item);
    }
  }
  std::vector<const PTRNDATA*> ordered;
  ordered.reserve(static_cast<std::size_t>(count));
  for (const gint type : PtrnTable) {
    const auto& items = byType[static_cast<std::size_t>(type)];
    ordered.insert(ordered.end(), items.begin(), items.end());
  }
  return ordered;
}

// Counts every item, those of no known type included: they are not written, the header counts them
// all the same.
void CountItems() {
  PtrnHedr.Version = Version;
  PtrnHedr.DataCount = GetPtrnCount();
  PtrnHedr.TextSize = 0;
  PtrnHedr.UndfFlag = 0;
  for (gint no = 0; no < PtrnHedr.DataCount; ++no) {
    const PTRNDATA* item = ViewPtrnData(no);
    for (const std::string_view text : TextsOf(*item)) {
      PtrnHedr.TextSize += static_cast<gint>(text.size()) + 1;
    }
    PtrnHedr.UndfFlag += item->UndfFlag != 0;
  }
}

PTRNFILE RecordFromItem(const PTRNDATA& item) {
  PTRNFILE record{};
  record.Type = item.Type;
  // Stored items are packed, so their numbers need not be aligned.
  std::memcpy(record.Parm, item.Parm, sizeof record.Parm);
  record.ID_Type = item.ID_Type;
  record.ID_No = item.ID_No;
  record.UndfFlag = item.UndfFlag;
  return record;
}

template <typename Record>
void Append(std::string& bytes, const Record& record) {
  bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
}

std::string LayoutBytes() {
  const std::vector<const PTRNDATA*> items = ItemsInFileOrder();
  const std::size_t textStart = sizeof(PTRNHEDR) + items.size() * sizeof(PTRNFILE);
  const std::size_t size = textStart + static_cast<std::size_t>(PtrnHedr.TextSize);
  std::string bytes;
  bytes.reserve(size);
  Append(bytes, PtrnHedr);
  for (const PTRNDATA* item : items) {
    Append(bytes, RecordFromItem(*item));
  }
  for (const PTRNDATA* item : items) {
    for (const std::string_view text : TextsOf(*item)) {
      bytes.append(text).push_back('\0');
    }
  }
  bytes.resize(size, '\0');
  return bytes;
}

}  // namespace

bool WritePtrnFile(const gchar* path, const gchar* name) {
  try {
    CountItems();
    return ReplaceFile(JoinPath(path, name, "ptn"), LayoutBytes());
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void PtrnFileWrite(const gchar* path, const gchar* name) {
  WritePtrnFile(path, name);
}
