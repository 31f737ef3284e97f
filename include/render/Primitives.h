// Primitives. Colours are indexes into DrawColr (0..99 palette, 100 white, 101 black, 102 red),
// fonts into DrawFont (0..19, 20 the small font), marks 0..353. A number out of range draws
// nothing. Texts are EUC-JP.
#pragma once

#include "render/Surface.h"

// A colour as the primitives use it.
struct DRAWCOLR {
  guint16 red;
  guint16 green;
  guint16 blue;
  guint32 pixel;  // 0xRRGGBB, high bytes of the channels
};

extern DRAWCOLR DrawColr[103];
enum { ColourWhite = 100, ColourBlack = 101, ColourRed = 102 };
// Foreground and background of the mouse cursors, from the profile.
extern DRAWCOLR CusrColr[2];
enum { SmallFont = 20 };

// Built-in indicator images kept beside the marks.
enum { MarkRadioOff = 350, MarkRadioOn = 351, MarkCheckOff = 352, MarkCheckOn = 353 };

// One mark as picture text: a header, two colour lines, the pixel rows.
constexpr gint MarkHeaderLines = 3;
struct MARK_XPM {
  const gchar* mark[67];
  gchar data[67][66];
};
extern MARK_XPM Mark_XPM[354];

// Once at start: colours 100..102, small font, cursor colours, built-in pictures, mark tables.
void InitDrawData();
void MarkDataInit();

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
// A mark scaled into a box; background -1 = transparent.
void DrawMark(Drawable* drawable, DrawGc* gc, gint x, gint y, gint width, gint height, gint fg,
              gint bg, gint mark);
// A picture file scaled into a box; transparent colour -1 = opaque. An unreadable file draws
// nothing.
void DrawBmap(Drawable* drawable, DrawGc* gc, gint x, gint y, gint width, gint height,
              gint transparent, const gchar* path, const gchar* name);
// A built-in picture scaled into a box.
void DrawXpm(Drawable* drawable, DrawGc* gc, gint x, gint y, gint width, gint height,
             const gchar* const* xpm);
// Fills w x h pixels at (x, y) with 0xRRGGBB, for colours outside the palette.
void FillPixels(Drawable* drawable, gint x, gint y, gint w, gint h, guint32 rgb);
// 0xRRGGBB of 16-bit channels.
guint32 PixelOf(gint red, gint green, gint blue);
