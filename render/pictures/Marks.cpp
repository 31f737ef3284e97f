#include "render/Marks.h"

#include <algorithm>

#include "render/Pictures.h"

MARK_XPM Mark_XPM[MarkCheckOn + 1];

namespace {

constexpr gint IndicatorSide = 16;

void FillIndicator(gint mark, const gchar* const* picture) {
  for (gint line = 0; line < MarkHeaderLines + IndicatorSide; ++line) {
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
