#include <cstring>
#include <map>
#include <string>

#include "render/Pictures.h"
#include "render/pictures/KeptPictures.h"
#include "render/pictures/XpmPicture.h"

namespace {

constexpr std::size_t MaxTexts = 64;

struct KnownText {
  std::vector<std::string> Lines;
  guint64 Source;
};

// The header says how many lines there are, so equal first lines make the others readable.
bool Matches(const KnownText& known, const gchar* const* xpm) {
  for (std::size_t i = 0; i < known.Lines.size(); ++i) {
    if (std::strcmp(known.Lines[i].c_str(), xpm[i]) != 0) return false;
  }
  return true;
}

// The number of a picture text's present state, 0 when it is none. Texts are compared, since their
// colours are changed in place.
guint64 SourceOf(const gchar* const* xpm) {
  static std::map<const void*, KnownText> texts;
  const auto known = texts.find(xpm);
  if (known != texts.end() && Matches(known->second, xpm)) return known->second.Source;
  const gint lineCount = XpmLineCount(xpm);
  if (lineCount == 0) return 0;
  if (texts.size() >= MaxTexts) texts.clear();
  const guint64 source = NewPictureSource();
  texts.insert_or_assign(xpm, KnownText{{xpm, xpm + lineCount}, source});
  return source;
}

}  // namespace

void DrawXpm(Drawable* drawable, DrawGc* /*gc*/, gint x, gint y, gint width, gint height,
             const gchar* const* xpm) {
  const PlaneBox box{x, y, gint64{x} + width, gint64{y} + height};
  if (box.Clip(BoxOf(*drawable)).Empty()) return;
  const guint64 source = SourceOf(xpm);
  if (source != 0) {
    PaintKept(*drawable, box, {source, -1, -1}, false, [xpm] { return PixbufFromXpm(xpm); });
  }
}
