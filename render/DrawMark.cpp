#include "ScaledPicture.h"
#include "XpmPicture.h"

namespace {

void SetColourLine(gchar (&line)[66], gchar character, guint32 rgb) {
  g_snprintf(line, sizeof line, "%c c #%06X", character, rgb & 0xffffff);
}

}  // namespace

void DrawMark(Drawable* drawable, DrawGc*, gint x, gint y, gint width, gint height, gint fg,
              gint bg, gint mark) {
  const bool transparent = bg < 0;
  if (mark < 0 || mark > MarkCheckOn || !ColourExists(fg) || (!transparent && !ColourExists(bg))) {
    return;
  }
  MARK_XPM& xpm = Mark_XPM[mark];
  const guint32 background = transparent ? 0x010203 : DrawColr[bg].pixel;
  SetColourLine(xpm.data[1], '.', background);
  SetColourLine(xpm.data[2], 'X', DrawColr[fg].pixel);
  PixbufPtr picture = PixbufFromXpm(xpm.mark);
  if (transparent) {
    picture = WithTransparent(picture.get(), 1, 2, 3);
  }
  PaintScaled(*drawable, picture.get(), {x, y, gint64{x} + width, gint64{y} + height}, transparent);
}
