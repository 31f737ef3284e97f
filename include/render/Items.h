// The items of a layout by type: painters, of which each type has its row, and outlines.
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

// Outline and handles of an item at `zoom` percent. `undefined` 1: red, without handles.
void DrawMoveData(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint zoom);
void DrawMoveData01(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom);
void DrawMoveData02(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom);
void DrawMoveData04(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom);
void DrawMoveData06(Drawable* drawable, DrawGc* gc, const PTRNDATA* item, gint undefined,
                    gint zoom);

// Whether an outline runs across the inside of its item's box, not along its edges alone.
bool OutlineCrossesBox(gint type);

// The outlines of the incomplete items of the open layout.
void DrawUndfData(Drawable* drawable, DrawGc* gc, gint zoom);
// Sample text of a numeric item, at most 99 characters.
void NumericSample(const PTRNDATA* item, gchar* text, gsize size);
