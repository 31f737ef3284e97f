#include <cstring>

#include "render/Palette.h"
#include "render/Pictures.h"
#include "support/Profile.h"
#include "support/Resource.h"

guint8 CursorData[8][128];
guint8 CursorMask[8][128];
const POINT CursorHome[8] = {{1, 1},  {15, 15}, {15, 16}, {15, 15},
                             {9, 15}, {15, 9},  {12, 12}, {12, 12}};

namespace {

constexpr gint CursorSide = 32;
constexpr gint ColourLines = 3;

}  // namespace

void SetXpmColr(const gchar** xpm, gint no) {
  // Kept: the pictures paint their middle colour with ".", yet its line is written for ",". A
  // configured second colour leaves "." without a definition.
  static constexpr gchar characters[ColourLines] = {' ', ',', 'X'};
  static gchar lines[3][ColourLines][20];
  if (no < 1 || no > 3) return;
  gchar colours[ColourLines][100];
  ProfileRead2("", "COLOR", "XPM_COLR", no, "sss", colours[0], colours[1], colours[2]);
  for (gint i = 0; i < ColourLines; ++i) {
    if (std::strlen(colours[i]) == 6) {
      gchar* line = lines[no - 1][i];
      g_snprintf(line, sizeof lines[no - 1][i], "%c c #%s", characters[i], colours[i]);
      xpm[1 + i] = line;
    }
  }
}

void MakeCursor(const gchar* const* xpm, guint8* data, guint8* mask) {
  std::memset(data, 0, sizeof CursorData[0]);
  std::memset(mask, 0, sizeof CursorMask[0]);
  for (gint y = 0; y < CursorSide; ++y) {
    const gchar* row = xpm[1 + ColourLines + y];
    for (gint x = 0; x < CursorSide && row[x] != '\0'; ++x) {
      const gint byte = 4 * y + x / 8;
      if (row[x] != ' ') mask[byte] |= ByteMask[x % 8];
      if (row[x] == 'X') data[byte] |= ByteMask[x % 8];
    }
  }
}

void XPM_DataInit() {
  SetXpmColr(XPM_Printer, 1);
  SetXpmColr(XPM_SpinButn, 2);
  // Kept: XPM_DownArrow1 stands in place of XPM_DownArrow2, too, which keeps its built-in colours.
  const gchar** const arrows[] = {XPM_LeftArrow1, XPM_LeftArrow2, XPM_RightArrow1, XPM_RightArrow2,
                                  XPM_UpArrow1,   XPM_UpArrow2,   XPM_DownArrow1,  XPM_DownArrow1};
  for (const gchar** arrow : arrows) SetXpmColr(arrow, 3);
  const gchar* const* const cursors[] = {XPM_Cursor1, XPM_Cursor2, XPM_Cursor3, XPM_Cursor4,
                                         XPM_Cursor5, XPM_Cursor6, XPM_Cursor7, XPM_Cursor8};
  for (gint i = 0; i < 8; ++i) MakeCursor(cursors[i], CursorData[i], CursorMask[i]);
}
