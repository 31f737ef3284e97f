#include <cmath>
#include <cstdlib>

#include "Paint.h"

namespace {

// Pixels of one row of a figure, both included; empty when first > last.
struct Span {
  gint64 first;
  gint64 last;
};

double HalfChord(double a, double ratio) {
  return a * std::sqrt(std::max(0.0, 1.0 - ratio * ratio));
}

// Row of the filled ellipse in a box: the pixels whose centres it holds.
Span FilledRow(const PlaneBox& box, gint64 y) {
  const double a = static_cast<double>(box.x2 - box.x1) / 2;
  const double b = static_cast<double>(box.y2 - box.y1) / 2;
  const double half = HalfChord(a, (static_cast<double>(y - box.y1) + 0.5 - b) / b);
  const auto margin = static_cast<gint64>(std::ceil(a - half - 0.5));
  return {box.x1 + margin, box.x2 - 1 - margin};
}

// Row of the figure that an outline bounds: every pixel that the curve, rounded to the nearest
// pixel along the row or along the column, encloses.
Span EnclosedRow(const PlaneBox& box, gint64 y) {
  const double a = static_cast<double>(box.x2 - box.x1) / 2;
  const double b = static_cast<double>(box.y2 - box.y1) / 2;
  const double dy = std::abs(static_cast<double>(y - box.y1) - b);
  double half = b > 0 ? HalfChord(a, dy / b) + 0.5 : a;
  if (dy >= 0.5) {
    half = std::max(half, HalfChord(a, (dy - 0.5) / b));
  }
  const auto margin = static_cast<gint64>(std::ceil(a - std::min(half, a)));
  return {box.x1 + margin, box.x2 - margin};
}

void FillEllipse(Drawable& drawable, guint32 rgb, const PlaneBox& box) {
  const PlaneBox part = box.Clip(BoxOf(drawable));
  if (part.Empty()) {
    return;
  }
  for (gint64 y = part.y1; y < part.y2; ++y) {
    const Span row = FilledRow(box, y);
    FillBox(drawable, {row.first, y, row.last + 1, y + 1}, rgb);
  }
}

// Whether the surface lies wholly inside the curve, so that no pixel of it shows.
bool Encloses(const PlaneBox& box, const PlaneBox& clip) {
  if (clip.y1 <= box.y1 || clip.y2 > box.y2) {
    return false;
  }
  const auto holds = [&](gint64 y) {
    const Span row = EnclosedRow(box, y);
    return row.first < clip.x1 && row.last >= clip.x2;
  };
  return holds(clip.y1 - 1) && holds(clip.y2);
}

// The pixels of the enclosed figure that have a neighbour outside it above, below, left or right.
void StrokeEllipse(Drawable& drawable, guint32 rgb, const PlaneBox& box) {
  const PlaneBox clip = BoxOf(drawable);
  const PlaneBox part = PlaneBox{box.x1, box.y1, box.x2 + 1, box.y2 + 1}.Clip(clip);
  if (part.Empty() || Encloses(box, clip)) {
    return;
  }
  // A row is asked for by itself and by its neighbour.
  struct {
    gint64 y = G_MININT64;
    Span span{};
  } recent[2];
  const auto enclosed = [&](gint64 y) -> Span {
    auto& kept = recent[y & 1];
    if (kept.y != y) {
      kept = {y, EnclosedRow(box, y)};
    }
    return kept.span;
  };
  for (gint64 y = part.y1; y < part.y2; ++y) {
    const Span row = enclosed(y);
    // The neighbour row away from the middle is never the longer one.
    const gint64 outer = y - box.y1 <= box.y2 - y ? y - 1 : y + 1;
    if (outer < box.y1 || outer > box.y2) {
      FillBox(drawable, {row.first, y, row.last + 1, y + 1}, rgb);
      continue;
    }
    const Span next = enclosed(outer);
    FillBox(drawable, {row.first, y, std::max(row.first + 1, next.first), y + 1}, rgb);
    FillBox(drawable, {std::min(row.last, next.last + 1), y, row.last + 1, y + 1}, rgb);
  }
}

}  // namespace

void DrawCrcl1(Drawable* drawable, DrawGc* gc, gint filled, gint x1, gint y1, gint x2, gint y2) {
  const PlaneBox box = Normalised(x1, y1, x2, y2);
  if (filled) {
    FillEllipse(*drawable, gc->Foreground, box);
  } else {
    StrokeEllipse(*drawable, gc->Foreground, box);
  }
}

void DrawCrcl(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint width,
              gint position, gint line, gint fill) {
  gc->Dashes = nullptr;
  if (ColourExists(fill)) {
    gc->Foreground = DrawColr[fill].pixel;
    DrawCrcl1(drawable, gc, 1, x1, y1, x2, y2);
  }
  if (width <= 0 || !ColourExists(line)) {
    return;
  }
  gc->Foreground = DrawColr[line].pixel;
  const OffsetRange insets = OutlineInsets(width, position);
  for (gint64 inset = insets.low; inset <= insets.high; ++inset) {
    // As with rectangles the corners are moved as given.
    StrokeEllipse(*drawable, gc->Foreground,
                  Normalised(x1 + inset, y1 + inset, x2 - inset, y2 - inset));
  }
}
