// A project's palette and marks and the fonts of the display language, and the display language.
#pragma once

#include "Types.h"

constexpr gint ColrCount = 100;
constexpr gint MarkCount = 350;
constexpr gint FontCount = 20;

#pragma pack(push, 1)

// One palette colour; each channel holds a 16-bit value 0..65535.
struct COLRDATA {
  gint red;
  gint green;
  gint blue;
};

// One mark: bits row by row, least significant bit first, `MarkDataSize[number / 50]` pixels.
struct MARKDATA {
  guint8 mark[512];
};

#pragma pack(pop)

static_assert(sizeof(COLRDATA) == 12);
static_assert(sizeof(MARKDATA) == 512);

// The open project's palette and marks. Written by the Load functions and the editors.
extern COLRDATA ColrData[ColrCount];
extern MARKDATA MarkData[MarkCount];
// Descriptors of the fonts (as read) and their names for display (UTF-8), by FontDataInit.
extern gchar FontName[FontCount][258];
extern gchar FontList[FontCount][258];
// The choices of a font drop-down: FontList, ended by an empty text.
extern gchar* FontNameList[FontCount + 1];
// Line height of each font in dots, 0 when unknown. By FontDataInit.
extern gint FontHeight[FontCount];
// Display language 0..2. Written by FontDataInit(1) and the language command.
extern gint Language;
// Pixel size of a mark by its group of 50.
extern const SIZE MarkDataSize[7];
// Mask of bit 0..7 of a mark's byte.
extern const guint8 ByteMask[8];

// Height that a font descriptor names: its pixel size, or with "*" there its point size / 10; 0
// when it names none.
gint FontDescriptorHeight(const gchar* descriptor);

// Pixel (x, y) of mark `markno`: 1 when set; 0 when clear or outside.
gint MarkDataGet(gint markno, const MARKDATA* markdata, gint xno, gint yno);
// Sets (data 1) or clears a pixel; outside the mark nothing happens.
void MarkDataSet(gint markno, MARKDATA* markdata, gint xno, gint yno, gint data);
