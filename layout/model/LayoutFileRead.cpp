#include <cstring>
#include <new>
#include <vector>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "layout/model/LayoutInput.h"
#include "support/FileTools.h"
#include "support/Text.h"

namespace {

constexpr std::size_t TextLimit = 100;
constexpr std::size_t NameLimit = 80;
constexpr std::size_t CodeLimit = 20;

template <std::size_t Size>
void Terminate(gchar (&field)[Size]) {
  field[Size - 1] = '\0';
}

bool ReadHeader(LayoutInput& input, PTRNHEDR& header) {
  PTRNHEDR read;
  if (!input.Read(&read, sizeof read)) {
    return false;
  }
  Terminate(read.PtrnName1);
  Terminate(read.PtrnName2);
  Terminate(read.PtrnName3);
  Terminate(read.LogoName);
  Terminate(read.BmapName);
  read.Parm2[ViewSlot::GridShown] = 0;
  header = read;
  return true;
}

PTRNDATA ItemFromRecord(const PTRNFILE& record) {
  PTRNDATA item{};
  item.Type = record.Type;
  std::memcpy(item.Parm, record.Parm, sizeof item.Parm);
  item.ID_Type = record.ID_Type;
  item.ID_No = record.ID_No;
  item.UndfFlag = record.UndfFlag;
  item.Point1 = {record.Parm[ItemSlot::X1], record.Parm[ItemSlot::Y1]};
  item.Point2 = {record.Parm[ItemSlot::X2], record.Parm[ItemSlot::Y2]};
  return item;
}

// Appends the items; `kept` tells for each record whether its type is one the store may hold.
bool ReadRecords(LayoutInput& input, gint count, std::vector<bool>& kept) {
  for (gint i = 0; i < count; ++i) {
    PTRNFILE record;
    if (!input.Read(&record, sizeof record)) {
      return false;
    }
    kept.push_back(IsItemType(record.Type));
    if (kept.back()) {
      const PTRNDATA item = ItemFromRecord(record);
      AddPtrnData(&item);
    }
  }
  return true;
}

template <std::size_t Size>
void ReadText(LayoutInput& input, gchar (&field)[Size], std::size_t limit) {
  CopyText(field, input.NextText(limit));
}

void ReadTexts(LayoutInput& input, PTRNDATA& item) {
  ReadText(input, item.Text1, TextLimit);
  ReadText(input, item.Text2, TextLimit);
  ReadText(input, item.Text3, TextLimit);
  ReadText(input, item.ID_Name, NameLimit);
  ReadText(input, item.ID_Code, CodeLimit);
}

gint ReadLayout(LayoutInput& input) {
  if (!input.IsOpen() || !ReadHeader(input, PtrnHedr)) {
    return 0;
  }
  gint no = GetPtrnCount();
  std::vector<bool> kept;
  if (!ReadRecords(input, PtrnHedr.DataCount, kept) || PtrnHedr.TextSize == 0 ||
      !input.BeginTexts(PtrnHedr.TextSize)) {
    return 0;
  }
  PTRNDATA dropped;
  for (const bool keep : kept) {
    if (!keep) {
      ReadTexts(input, dropped);
      continue;
    }
    PTRNDATA item;
    GetPtrnData(no, &item);
    ReadTexts(input, item);
    SetPtrnData(no++, &item);
  }
  return 1;
}

}  // namespace

gint PtrnFileRead(const gchar* path, const gchar* name) {
  try {
    LayoutInput input(JoinPath(path, name, "ptn"));
    return ReadLayout(input);
  } catch (const std::bad_alloc&) {
    return 0;
  }
}
