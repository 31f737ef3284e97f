#include <algorithm>
#include <new>

#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/LayoutFile.h"
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

// As a layout is opened, whatever its file says.
void OpenHeader(PTRNHEDR& header) {
  Terminate(header.PtrnName1);
  Terminate(header.PtrnName2);
  Terminate(header.PtrnName3);
  Terminate(header.LogoName);
  Terminate(header.BmapName);
  header.Parm2[ViewSlot::GridShown] = 0;
}

// Appends those of the next `count` items whose type a layout may hold.
bool ReadBatch(LayoutInput& input, ItemArray& items, gint count) {
  PTRNDATA* const first = AddEmptyItems(items, count);
  PTRNDATA* next = first;
  bool whole = true;
  for (gint i = 0; i < count && (whole = input.NextItem(*next)); ++i) {
    if (IsItemType(next->Type)) {
      ++next;
    } else {
      *next = PTRNDATA{};
    }
  }
  items.resize(static_cast<std::size_t>(next - items.data()));
  return whole;
}

bool ReadItems(LayoutInput& input, ItemArray& items) {
  gint left = input.RecordsHeld();
  items.reserve(items.size() + static_cast<std::size_t>(std::min(left, MostRoom)));
  bool whole = true;
  while (whole && left > 0) {
    const gint count = std::min(left, BatchSize);
    whole = ReadBatch(input, items, count);
    left -= count;
  }
  return whole;
}

bool ReadLayout(LayoutInput& input, Layout& layout) {
  if (!input.IsOpen() || !input.ReadHeader(layout.Header)) return false;
  OpenHeader(layout.Header);
  return ReadItems(input, layout.Items) && layout.Header.TextSize != 0 && input.HoldsTexts();
}

}  // namespace

std::optional<Layout> DecodeLayout(std::string_view bytes) {
  LayoutInput input(bytes);
  Layout layout;
  if (!input.ReadHeader(layout.Header) || !input.HoldsTexts() || !ReadItems(input, layout.Items)) {
    return std::nullopt;
  }
  return layout;
}

LayoutReading ReadLayoutFile(const gchar* path, const gchar* name, Layout& layout) {
  try {
    LayoutInput input(JoinPath(path, name, "ptn"));
    const bool whole = ReadLayout(input, layout);
    return input.Failed() ? LayoutReading::Failed
           : whole        ? LayoutReading::Whole
                          : LayoutReading::Short;
  } catch (const std::bad_alloc&) {
    return LayoutReading::Failed;
  }
}
