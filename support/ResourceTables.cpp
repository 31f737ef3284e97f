#include <cstring>

#include "support/Resource.h"

namespace {

gchar NoFont[1] = "";

// Number of a mark's pixel, -1 outside of it.
gint PixelNumber(gint markno, gint xno, gint yno) {
  if (markno < 0 || markno >= MarkCount) return -1;
  const SIZE& size = MarkDataSize[markno / 50];
  if (xno < 0 || xno >= size.cx || yno < 0 || yno >= size.cy) return -1;
  return size.cx * yno + xno;
}

}  // namespace

COLRDATA ColrData[ColrCount];
MARKDATA MarkData[MarkCount];
gchar FontName[FontCount][258];
gchar FontList[FontCount][258];
gchar* FontNameList[FontCount + 1] = {
    FontList[0],  FontList[1],  FontList[2],  FontList[3],  FontList[4],  FontList[5],
    FontList[6],  FontList[7],  FontList[8],  FontList[9],  FontList[10], FontList[11],
    FontList[12], FontList[13], FontList[14], FontList[15], FontList[16], FontList[17],
    FontList[18], FontList[19], NoFont};
gint FontHeight[FontCount];
gint Language;

const SIZE MarkDataSize[7] = {{16, 32}, {16, 32}, {32, 32}, {32, 32}, {64, 32}, {32, 64}, {64, 64}};
const guint8 ByteMask[8] = {1, 2, 4, 8, 16, 32, 64, 128};

gint FontDescriptorHeight(const gchar* descriptor) {
  const gchar* field = descriptor;
  for (int count = 0; count < 7; ++count) {
    field = std::strchr(field, '-');
    if (field == nullptr) return 0;
    ++field;
  }
  // A free pixel size: the point size, in tenths, follows.
  const bool tenths = field[0] == '*';
  if (tenths) field += field[1] == '\0' ? 1 : 2;
  gint height = 0;
  for (int count = 0; count < 4 && g_ascii_isdigit(field[count]); ++count) {
    height = height * 10 + (field[count] - '0');
  }
  return tenths ? height / 10 : height;
}

gint MarkDataGet(gint markno, const MARKDATA* markdata, gint xno, gint yno) {
  const gint pixel = PixelNumber(markno, xno, yno);
  return pixel >= 0 && (markdata->mark[pixel / 8] & ByteMask[pixel % 8]) != 0 ? 1 : 0;
}

void MarkDataSet(gint markno, MARKDATA* markdata, gint xno, gint yno, gint data) {
  const gint pixel = PixelNumber(markno, xno, yno);
  if (pixel < 0) return;
  guint8& byte = markdata->mark[pixel / 8];
  const guint8 mask = ByteMask[pixel % 8];
  byte = static_cast<guint8>(data == 1 ? byte | mask : byte & ~mask);
}
