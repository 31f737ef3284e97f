#include "render/PaintedLayout.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "layout/EditState.h"
#include "layout/Guards.h"
#include "layout/ProjectRecord.h"
#include "layout/Store.h"
#include "render/LayoutPicture.h"
#include "render/Primitives.h"
#include "render/layout/Calendar.h"
#include "render/pictures/PictureFiles.h"
#include "render/surface/PageArea.h"
#include "support/Resource.h"

namespace {

// With more changed items a part costs as much as the whole.
constexpr std::size_t MaxChanged = 50;

template <typename... Data>
std::string BytesOf(const Data&... data) {
  std::string bytes;
  (bytes.append(reinterpret_cast<const char*>(&data), sizeof data), ...);
  return bytes;
}

std::string PresentLook() {
  return BytesOf(PtrnHedr.Parm1, PtrnHedr.Parm2, PtrnHedr.PtrnName1, PtrnHedr.PtrnName2,
                 PtrnHedr.PtrnName3, PtrnHedr.LogoName, PtrnHedr.BmapName, Language, ColorCode,
                 BmapPath, ColrData, DrawColr, FontName, FontHeight, MarkData);
}

bool Same(const PTRNDATA& a, const PTRNDATA& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

// What an item takes of a picture. Sets its extent, as painting does.
DrawnBox BoxOfItem(PTRNDATA* item, const Drawable& picture) {
  DrawnBox box;
  Drawable probe(picture.Width(), picture.Height(), &box);
  DrawGc gc;
  DrawPtrnItem(&probe, &gc, item);
  return box;
}

// The same of a stored item. Its extent is needed to pick it, even where nothing of it shows and
// nothing is painted.
DrawnBox BoxOfStored(gint no, const Drawable& picture) {
  PTRNDATA item;
  GetPtrnData(no, &item);
  const DrawnBox box = BoxOfItem(&item, picture);
  SetPtrnData(no, &item);
  return box;
}

void PaintPart(Drawable& picture, const DrawnBox& box) {
  Drawable part(picture, box);
  DrawGc gc;
  FillPixels(&part, part.X(), part.Y(), part.Width(), part.Height(), 0);
  DrawWindow1(&part, &gc);
}

}  // namespace

PaintedLayout::Clock PaintedLayout::PresentClock(const Drawable& picture) {
  Clock clock;
  const gint format = CalendarFormat(PtrnHedr.Parm1[HedrSlot::DateFormat]);
  if (format == 0 || PageArea(PtrnHedr).TitleHeight <= 0) return clock;
  clock.Text = CalendarText(format, PictureTime());
  Drawable probe(picture.Width(), picture.Height(), &clock.Box);
  DrawGc gc;
  DrawPageData2(&probe, &gc);
  return clock;
}

std::optional<std::vector<DrawnBox>> PaintedLayout::ChangedBoxes(const Drawable& picture,
                                                                 const std::string& look,
                                                                 const Clock& clock) const {
  if (!painted_ || look != look_ || pictures_.Changed()) return std::nullopt;
  // A commit changes one item, appends some or takes some out: the others stand before and behind.
  const auto oldCount = items_.size();
  const auto newCount = static_cast<std::size_t>(GetPtrnCount());
  const auto stored = [](std::size_t no) -> const PTRNDATA& {
    return *ViewPtrnData(static_cast<gint>(no));
  };
  const std::size_t common = std::min(oldCount, newCount);
  std::size_t before = 0;
  while (before < common && Same(items_[before], stored(before))) ++before;
  std::size_t behind = 0;
  while (behind < common - before &&
         Same(items_[oldCount - 1 - behind], stored(newCount - 1 - behind))) {
    ++behind;
  }
  const std::size_t changed = oldCount + newCount - 2 * (before + behind);
  if (changed == 0 || changed > MaxChanged) return std::nullopt;
  DrawnBox oldBox, newBox;
  for (std::size_t no = before; no < oldCount - behind; ++no) {
    PTRNDATA item = items_[no];
    oldBox.Add(BoxOfItem(&item, picture));
  }
  for (std::size_t no = before; no < newCount - behind; ++no) {
    newBox.Add(BoxOfStored(static_cast<gint>(no), picture));
  }
  if (oldBox.Meets(newBox)) {
    oldBox.Add(newBox);
    newBox = {};
  }
  // With the time gone on, a part of the clock alone would show two times at once.
  DrawnBox clockBox;
  if (clock.Text != clock_.Text) {
    clockBox = clock_.Box;
    clockBox.Add(clock.Box);
  }
  std::vector<DrawnBox> boxes{oldBox, newBox, clockBox};
  std::erase_if(boxes, [](const DrawnBox& box) { return box.Empty(); });
  return boxes;
}

void PaintedLayout::Remember(std::string look, Clock clock) {
  painted_ = false;
  try {
    items_.clear();
    for (gint no = 0; no < GetPtrnCount(); ++no) items_.push_back(*ViewPtrnData(no));
    look_ = std::move(look);
    clock_ = std::move(clock);
    painted_ = true;
  } catch (const std::bad_alloc&) {
    items_.clear();
  }
}

std::vector<DrawnBox> PaintedLayout::Paint(Drawable& picture) {
  std::string look = PresentLook();
  Clock clock = PresentClock(picture);
  const KeptPicturePaths paths;
  std::optional<std::vector<DrawnBox>> boxes = ChangedBoxes(picture, look, clock);
  if (!boxes) {
    pictures_.Clear();
    boxes = {{0, 0, picture.Width(), picture.Height()}};
  }
  const ShownPictures::Noting noting(pictures_);
  for (const DrawnBox& box : *boxes) PaintPart(picture, box);
  Remember(std::move(look), std::move(clock));
  return *std::move(boxes);
}
