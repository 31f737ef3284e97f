#include "render/items/OutlineByType.h"

#include "layout/Guards.h"
#include "render/Layout.h"

namespace {

// Index = type code.
constexpr OutlineFunction Outlines[16] = {
    nullptr,        DrawMoveData01, DrawMoveData02, DrawMoveData01, DrawMoveData04, DrawMoveData01,
    DrawMoveData06, DrawMoveData06, DrawMoveData06, DrawMoveData01, DrawMoveData06, DrawMoveData06,
    DrawMoveData01, DrawMoveData01, DrawMoveData01, DrawMoveData01};

}  // namespace

OutlineFunction OutlineOf(gint type) {
  return IsItemType(type) ? Outlines[type] : nullptr;
}
