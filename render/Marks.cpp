#include <algorithm>

#include "render/Pictures.h"
#include "render/Primitives.h"
#include "support/Resource.h"

MARK_XPM Mark_XPM[MarkCheckOn + 1];

namespace {

constexpr gint HeaderLines = 3;  // size and the two colours
constexpr gint IndicatorSide = 16;

void FillHeader(MARK_XPM& xpm, const SIZE& size) {
  g_snprintf(xpm.data[0], sizeof xpm.data[0], "%d %d 2 1", size.cx, size.cy);
  xpm.data[1][0] = xpm.data[2][0] = '\0';
}

void FillIndicator(gint mark, const gchar* const* picture) {
  for (gint line = 0; line < HeaderLines + IndicatorSide; ++line) {
    g_strlcpy(Mark_XPM[mark].data[line], picture[line], sizeof Mark_XPM[mark].data[line]);
  }
}

}  // namespace

void MarkDataInit() {
  for (MARK_XPM& xpm : Mark_XPM) {
    std::copy(std::begin(xpm.data), std::end(xpm.data), std::begin(xpm.mark));
  }
  FillIndicator(MarkRadioOff, XPM_Radio_OFF);
  FillIndicator(MarkRadioOn, XPM_Radio_ON);
  FillIndicator(MarkCheckOff, XPM_Check_OFF);
  FillIndicator(MarkCheckOn, XPM_Check_ON);
}

void SetDrawMark() {
  for (gint i = 0; i < MarkCount; ++i) {
    const SIZE& size = MarkDataSize[i / 50];
    FillHeader(Mark_XPM[i], size);
    for (gint y = 0; y < size.cy; ++y) {
      gchar* row = Mark_XPM[i].data[HeaderLines + y];
      for (gint x = 0; x < size.cx; ++x) {
        row[x] = MarkDataGet(i, &MarkData[i], x, y) ? 'X' : '.';
      }
      row[size.cx] = '\0';
    }
  }
}
