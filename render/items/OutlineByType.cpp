#include "render/items/OutlineByType.h"

#include <array>

#include "layout/ItemTypes.h"
#include "render/Items.h"

namespace {

struct Outline {
  OutlineFunction Draw;
  bool CrossesBox;
};

// Index = ItemShape.
constexpr auto Outlines = std::to_array<Outline>({{nullptr, false},
                                                  {DrawMoveData06, false},
                                                  {DrawMoveData02, true},
                                                  {DrawMoveData01, false},
                                                  {DrawMoveData04, true}});
static_assert(Outlines.size() == ItemShapeCount);

const Outline& OutlineRow(gint type) {
  return Outlines[static_cast<std::size_t>(ItemTypeOf(type).Shape)];
}

}  // namespace

OutlineFunction OutlineOf(gint type) {
  return OutlineRow(type).Draw;
}

bool OutlineCrossesBox(gint type) {
  return OutlineRow(type).CrossesBox;
}
