// A whole layout: frame, items, grid, overlay. What takes no layout paints the open one.
#pragma once

#include <ctime>
#include <span>

#include "layout/Records.h"
#include "render/Items.h"
#include "render/Surface.h"

// The layout's picture in layout dots. Finds the sizes of one-point items.
void DrawWindow1(Drawable* drawable, DrawGc* gc);
void DrawLayout(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header, std::span<PTRNDATA> items);
// The editing overlay in zoomed pixels.
void DrawWindow2(Drawable* drawable, DrawGc* gc);
// The grid in zoomed pixels; draws only the lines that the surface shows.
void DrawGridData(Drawable* drawable, DrawGc* gc);
void DrawGridData(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header);

void DrawPageData(Drawable* drawable, DrawGc* gc);
void DrawPageData(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header);
void DrawPageData1(Drawable* drawable, DrawGc* gc);
void DrawPageData1(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header);
void DrawPageData2(Drawable* drawable, DrawGc* gc);
void DrawPageData2(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header);
void DrawPageData3(Drawable* drawable, DrawGc* gc);
void DrawPageData3(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header);
void DrawPageData4(Drawable* drawable, DrawGc* gc);
void DrawPageData4(Drawable* drawable, DrawGc* gc, const PTRNHEDR& header);
// All items of a layer (0 or 1); writes the sizes found while painting into the items.
void DrawPtrnData(Drawable* drawable, DrawGc* gc, gint layer);
void DrawPtrnData(Drawable* drawable, DrawGc* gc, std::span<PTRNDATA> items, gint layer);

// The clock of the title area: a fixed local time for pictures that must repeat; null = now.
void SetPictureTime(const std::tm* time);
// Once at start: colours 100..102, small font, cursor colours, built-in pictures, mark tables.
void InitDrawData();
