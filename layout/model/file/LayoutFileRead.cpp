#include <algorithm>
#include <new>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Store.h"
#include "layout/model/file/LayoutInput.h"
#include "support/FileTools.h"

namespace {

// Items that are made at once: few enough to stay in the processor's cache while they are filled.
constexpr gint BatchSize = 32;
// Records are no more than claims before their types are seen: room for more items than these is
// made as they come.
constexpr gint MostRoom = 1 << 17;

template <std::size_t Size>
void Terminate(gchar (&field)[Size]) {
  field[Size - 1] = '\0';
}

bool ReadHeader(LayoutInput& input, PTRNHEDR& header) {
  if (!input.ReadHeader(header)) {
    return false;
  }
  Terminate(header.PtrnName1);
  Terminate(header.PtrnName2);
  Terminate(header.PtrnName3);
  Terminate(header.LogoName);
  Terminate(header.BmapName);
  header.Parm2[ViewSlot::GridShown] = 0;
  return true;
}

// Appends those of the next `count` items whose type the store may hold.
bool ReadBatch(LayoutInput& input, gint count) {
  PTRNDATA* const first = AddEmptyPtrnData(count);
  PTRNDATA* next = first;
  bool whole = true;
  for (gint i = 0; i < count && (whole = input.NextItem(*next)); ++i) {
    if (IsItemType(next->Type)) {
      ++next;
    } else {
      *next = PTRNDATA{};
    }
  }
  DropLastPtrnData(count - static_cast<gint>(next - first));
  return whole;
}

bool ReadItems(LayoutInput& input) {
  gint left = input.RecordsHeld();
  MakeRoomForPtrnData(std::min(left, MostRoom));
  bool whole = true;
  while (whole && left > 0) {
    const gint count = std::min(left, BatchSize);
    whole = ReadBatch(input, count);
    left -= count;
  }
  return whole;
}

bool ReadLayout(LayoutInput& input) {
  if (!input.IsOpen() || !ReadHeader(input, PtrnHedr)) {
    return false;
  }
  return ReadItems(input) && PtrnHedr.TextSize != 0 && input.HoldsTexts();
}

}  // namespace

LayoutReading ReadPtrnFile(const gchar* path, const gchar* name) {
  try {
    LayoutInput input(JoinPath(path, name, "ptn"));
    const bool whole = ReadLayout(input);
    return input.Failed() ? LayoutReading::Failed
           : whole        ? LayoutReading::Whole
                          : LayoutReading::Short;
  } catch (const std::bad_alloc&) {
    return LayoutReading::Failed;
  }
}

gint PtrnFileRead(const gchar* path, const gchar* name) {
  return ReadPtrnFile(path, name) == LayoutReading::Whole ? 1 : 0;
}
