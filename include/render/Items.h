// Painting of single items: a painter per type, and one row per type that says so.
#pragma once

#include <array>

#include "layout/ItemTypes.h"
#include "render/Surface.h"

// One item of any type.
void DrawPtrnItem(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
// The renderers, by type code. One-point types write the item's Size.
void DrawPtrnData01(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData02(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData03(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData04(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData05(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData06(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData07(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData08(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData09(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData10(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData11(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData12(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData13(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData14(Drawable* drawable, DrawGc* gc, PTRNDATA* item);
void DrawPtrnData15(Drawable* drawable, DrawGc* gc, PTRNDATA* item);

using ItemPainter = void (*)(Drawable* drawable, DrawGc* gc, PTRNDATA* item);

// Index = type code - 1.
inline constexpr auto ItemPainters = std::to_array<ItemPainter>(
    {DrawPtrnData01, DrawPtrnData02, DrawPtrnData03, DrawPtrnData04, DrawPtrnData05, DrawPtrnData06,
     DrawPtrnData07, DrawPtrnData08, DrawPtrnData09, DrawPtrnData10, DrawPtrnData11, DrawPtrnData12,
     DrawPtrnData13, DrawPtrnData14, DrawPtrnData15});
static_assert(ItemPainters.size() == ItemTypeCount, "each type has a painter");
