// Primitives. Colours are indexes into DrawColr (0..99 palette, 100 white, 101 black, 102 red),
// fonts into DrawFont (0..19, 20 the small font), marks 0..353. A number out of range draws
// nothing. Texts are EUC-JP.
#pragma once

#include "render/FontTable.h"
#include "render/Marks.h"
#include "render/Palette.h"
#include "render/Pictures.h"
#include "render/Surface.h"

// One line of text with its top-left corner at (x, y); background -1 = none.
void DrawText(Drawable* drawable, DrawGc* gc, gint x, gint y, gint font, gint fg, gint bg,
              const gchar* text);
// The same without a background, standing on the row above `baseline`.
void DrawTextOnBaseline(Drawable* drawable, DrawGc* gc, gint x, gint baseline, gint font, gint fg,
                        const gchar* text);
// Ink extent: left + right bearing, ascent + descent. (0, 0) for an empty text or no font.
SIZE GetTextSize(gint font, const gchar* text);
// Style 0 solid, 1 dashed, else dotted; position of the width: 0 centred, 1 top/left, else the
// other side. Both ends are drawn.
void DrawLine(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint style,
              gint width, gint position, gint colour);
// Rectangle and ellipse; fill colour -1 = none. Position of the outline: 0 centred, 1 inside, else
// outside.
void DrawRect(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint width,
              gint position, gint line, gint fill);
void DrawCrcl(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint width,
              gint position, gint line, gint fill);
// One figure in the context's foreground from any two corners: filled covers w x h, else the
// outline covers w+1 x h+1 pixels.
void DrawRect1(Drawable* drawable, DrawGc* gc, gint filled, gint x1, gint y1, gint x2, gint y2);
void DrawCrcl1(Drawable* drawable, DrawGc* gc, gint filled, gint x1, gint y1, gint x2, gint y2);
// Framed box; widths and colours in the order top, bottom, left, right. Later borders lie on top.
void DrawGbox(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint top,
              gint bottom, gint left, gint right, gint topColour, gint bottomColour,
              gint leftColour, gint rightColour, gint areaColour);
// Raised button face with a label; colours in the order top-left, bottom-right, face, text. Label
// position 0 = centred, else its distance from the left edge.
void DrawButn(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint border,
              gint topLeftColour, gint bottomRightColour, gint faceColour, gint textColour,
              gint position, gint font, const gchar* label);
