// An object of its own, so that a test can stand in for SetDrawMark.
#include <array>
#include <cstring>

#include "render/Marks.h"
#include "render/Palette.h"
#include "support/Resource.h"

namespace {

void FillHeader(MARK_XPM& xpm, const SIZE& size) {
  g_snprintf(xpm.data[0], sizeof xpm.data[0], "%d %d 2 1", size.cx, size.cy);
  xpm.data[1][0] = xpm.data[2][0] = '\0';
}

// The picture text of the eight pixels of every byte; all widths are multiples of eight.
std::array<std::array<gchar, 8>, 256> ByteTexts() {
  std::array<std::array<gchar, 8>, 256> texts;
  for (std::size_t byte = 0; byte < texts.size(); ++byte) {
    for (std::size_t bit = 0; bit < 8; ++bit) {
      texts[byte][bit] = (byte & ByteMask[bit]) != 0 ? 'X' : '.';
    }
  }
  return texts;
}

}  // namespace

void SetDrawMark() {
  const std::array<std::array<gchar, 8>, 256> bytes = ByteTexts();
  for (gint i = 0; i < MarkCount; ++i) {
    const SIZE& size = MarkDataSize[i / 50];
    FillHeader(Mark_XPM[i], size);
    const guint8* byte = MarkData[i].mark;
    for (gint y = 0; y < size.cy; ++y) {
      gchar* row = Mark_XPM[i].data[MarkHeaderLines + y];
      for (gint x = 0; x < size.cx; x += 8) std::memcpy(row + x, bytes[*byte++].data(), 8);
      row[size.cx] = '\0';
    }
  }
}
