#include <cstring>

#include "layout/Guards.h"
#include "render/Marks.h"
#include "render/Palette.h"
#include "render/pictures/KeptPictures.h"
#include "render/pictures/XpmPicture.h"

namespace {

constexpr std::size_t ColourLines = 2;  // after the header

void SetColourLine(gchar (&line)[66], gchar character, guint32 rgb) {
  g_snprintf(line, sizeof line, "%c c #%06X", character, rgb & 0xffffff);
}

// The number of a mark's present shape.
guint64 SourceOf(gint mark) {
  struct KnownShape {
    gchar Lines[67][66];  // colours left blank
    guint64 Source;
  };
  static std::unique_ptr<KnownShape> shapes[MarkCheckOn + 1];
  const auto& lines = Mark_XPM[mark].data;
  constexpr std::size_t first = 1 + ColourLines;
  std::unique_ptr<KnownShape>& known = shapes[mark];
  if (known && std::memcmp(known->Lines[0], lines[0], sizeof lines[0]) == 0 &&
      std::memcmp(known->Lines[first], lines[first], sizeof lines - first * sizeof lines[0]) == 0) {
    return known->Source;
  }
  known = std::make_unique<KnownShape>();
  std::memcpy(known->Lines, lines, sizeof lines);
  known->Source = NewPictureSource();
  return known->Source;
}

PixbufPtr MarkPicture(gint mark, guint32 front, gint64 back) {
  MARK_XPM& xpm = Mark_XPM[mark];
  const bool transparent = back < 0;
  SetColourLine(xpm.data[1], '.', transparent ? 0x010203 : static_cast<guint32>(back));
  SetColourLine(xpm.data[2], 'X', front);
  PixbufPtr picture = PixbufFromXpm(xpm.mark);
  return transparent ? WithTransparent(picture.get(), 1, 2, 3) : std::move(picture);
}

}  // namespace

void DrawMark(Drawable* drawable, DrawGc* /*gc*/, gint x, gint y, gint width, gint height, gint fg,
              gint bg, gint mark) {
  const bool transparent = bg < 0;
  const PlaneBox box{x, y, gint64{x} + width, gint64{y} + height};
  if (!IsMark(mark) || !IsColour(fg) || (!transparent && !IsColour(bg)) ||
      box.Clip(BoxOf(*drawable)).Empty()) {
    return;
  }
  const guint32 front = DrawColr[fg].pixel;
  const gint64 back = transparent ? gint64{-1} : gint64{DrawColr[bg].pixel};
  PaintKept(*drawable, box, {SourceOf(mark), front, back}, transparent,
            [&] { return MarkPicture(mark, front, back); });
}
