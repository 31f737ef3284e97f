// The marks as pictures, and their file.
#pragma once

#include "render/Surface.h"

// Built-in indicator images kept beside the marks.
enum { MarkRadioOff = 350, MarkRadioOn = 351, MarkCheckOff = 352, MarkCheckOn = 353 };

// One mark as picture text: a header, two colour lines, the pixel rows.
constexpr gint MarkHeaderLines = 3;
struct MARK_XPM {
  const gchar* mark[67];
  gchar data[67][66];
};
extern MARK_XPM Mark_XPM[354];

// Builds the tables of all marks, once at start.
void MarkDataInit();
// A mark scaled into a box; background -1 = transparent.
void DrawMark(Drawable* drawable, DrawGc* gc, gint x, gint y, gint width, gint height, gint fg,
              gint bg, gint mark);

// Reads "PtrnMark" of the project folder, zeros when missing or short, and rebuilds the pictures.
void LoadMarkFile();
// Rebuilds the pictures and writes "PtrnMark", except while the settings of a new project are
// shown.
void SaveMarkFile();
// Rebuilds the marks' pictures from MarkData.
void SetDrawMark();
