#include "project/check/Background.h"

#include <algorithm>
#include <array>

#include "layout/ItemTypes.h"
#include "project/check/Rules.h"
#include "support/Text.h"

namespace {

constexpr gint Unknown = -1;
// More than ever lies on one spot of a real layout; keeps hostile ones from taking hours.
constexpr std::size_t SearchLimit = 4096;

bool Hides(const PTRNDATA& item) {
  const ItemTypeRow& type = ItemTypeOf(item.Type);
  return type.Covers && IsOn(item, type.CoverSwitch);
}

gint ColourOf(const PTRNDATA& cover, gint system) {
  const gint colour = ItemTypeOf(cover.Type).CoverColour;
  return colour == NoSlot ? Unknown : ColourIn(cover, colour, system);
}

// Place of an item in the painting order: layer, then type.
std::array<gint, 2> RankOf(const PTRNDATA& item) {
  return {item.Parm[ItemSlot::TopLayer], ItemTypeOf(item.Type).PaintRank};
}

bool PaintedBefore(const PTRNDATA* one, const PTRNDATA* other) {
  return RankOf(*one) < RankOf(*other);
}

bool Covers(const PTRNDATA& item, const POINT& point) {
  const auto [left, right] = std::minmax<gint>({item.Point1.x, item.Point2.x});
  const auto [top, bottom] = std::minmax<gint>({item.Point1.y, item.Point2.y});
  return left <= point.x && point.x < right && top <= point.y && point.y < bottom;
}

}  // namespace

Backgrounds::Backgrounds(const CheckedLayout& layout) : layout_(layout) {
  for (const PTRNDATA& item : layout.Items) {
    if (Hides(item)) covers_.push_back(&item);
  }
  std::stable_sort(covers_.begin(), covers_.end(), PaintedBefore);
}

gint Backgrounds::Behind(const PTRNDATA& item, gint system) const {
  const POINT point = item.Point1;
  auto cover = std::lower_bound(covers_.begin(), covers_.end(), &item, PaintedBefore);
  for (std::size_t looked = 0; cover != covers_.begin(); ++looked) {
    if (looked == SearchLimit) return Unknown;
    --cover;
    if (Covers(**cover, point)) return ColourOf(**cover, system);
  }
  return AreaColour(point);
}

gint Backgrounds::AreaColour(const POINT& point) const {
  const auto& parm = layout_.Header.Parm1;
  if (point.y < 0 || point.y >= parm[HedrSlot::Height]) return Unknown;
  if (point.y < parm[HedrSlot::TitleHeight]) return parm[HedrSlot::TitleAreaColour];
  if (point.y >= parm[HedrSlot::Height] - parm[HedrSlot::ButtonAreaHeight]) {
    return parm[HedrSlot::ButtonAreaColour];
  }
  const bool plain = FieldText(layout_.Header.BmapName).empty() && parm[HedrSlot::Gradation] == 0;
  return plain ? gint{parm[HedrSlot::WorkAreaColour]} : Unknown;
}
