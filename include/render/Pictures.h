// Pictures: files, and the built-in ones and mouse cursors as picture text.
#pragma once

#include "render/Surface.h"

extern const gchar* XPM_Radio_OFF[];
extern const gchar* XPM_Radio_ON[];
extern const gchar* XPM_Check_OFF[];
extern const gchar* XPM_Check_ON[];
extern const gchar* XPM_SpinButn[];
extern const gchar* XPM_UpArrow1[];
extern const gchar* XPM_UpArrow2[];
extern const gchar* XPM_DownArrow1[];
extern const gchar* XPM_DownArrow2[];
extern const gchar* XPM_LeftArrow1[];
extern const gchar* XPM_LeftArrow2[];
extern const gchar* XPM_RightArrow1[];
extern const gchar* XPM_RightArrow2[];
extern const gchar* XPM_Printer[];
// 32 x 32 cursors: header, three colour lines, 32 rows; blank = transparent, "X" = foreground.
extern const gchar* XPM_Cursor1[];
extern const gchar* XPM_Cursor2[];
extern const gchar* XPM_Cursor3[];
extern const gchar* XPM_Cursor4[];
extern const gchar* XPM_Cursor5[];
extern const gchar* XPM_Cursor6[];
extern const gchar* XPM_Cursor7[];
extern const gchar* XPM_Cursor8[];

// Bits of the cursors (bit x % 8 of byte 4 y + x / 8), their masks and hot spots, by cursor number.
extern guint8 CursorData[8][128];
extern guint8 CursorMask[8][128];
extern const POINT CursorHome[8];

// Recolours the built-in pictures from the profile and builds the cursor bits.
void XPM_DataInit();
// Takes the three colours of profile key "XPM_COLR<no>" into a picture's colour lines.
void SetXpmColr(const gchar** xpm, gint no);
void MakeCursor(const gchar* const* xpm, guint8* data, guint8* mask);

// A picture file scaled into a box; transparent colour -1 = opaque. An unreadable file draws
// nothing.
void DrawBmap(Drawable* drawable, DrawGc* gc, gint x, gint y, gint width, gint height,
              gint transparent, const gchar* path, const gchar* name);
// A built-in picture scaled into a box.
void DrawXpm(Drawable* drawable, DrawGc* gc, gint x, gint y, gint width, gint height,
             const gchar* const* xpm);
