#include "layout/Guards.h"
#include "render/Primitives.h"
#include "render/primitives/EllipseRows.h"
#include "render/primitives/Outlines.h"

namespace {

void FillRow(Drawable& drawable, guint32 rgb, gint64 y, const Span& row) {
  FillBox(drawable, {row.First, y, row.Last + 1, y + 1}, rgb);
}

// The part of an outline's box that the surface has.
PlaneBox PartOf(const Drawable& drawable, const PlaneBox& outline) {
  return PlaneBox{outline.x1, outline.y1, outline.x2 + 1, outline.y2 + 1}.Clip(BoxOf(drawable));
}

void FillEllipse(Drawable& drawable, guint32 rgb, const PlaneBox& box) {
  const PlaneBox part = box.Clip(BoxOf(drawable));
  if (part.Empty()) return;
  for (gint64 y = part.y1; y < part.y2; ++y) FillRow(drawable, rgb, y, FilledRow(box, y));
}

// All that lies within an outline.
void FillInside(Drawable& drawable, guint32 rgb, const PlaneBox& outline) {
  const PlaneBox part = PartOf(drawable, outline);
  if (part.Empty()) return;
  OutlineRows rows(outline);
  for (gint64 y = part.y1; y < part.y2; ++y) FillRow(drawable, rgb, y, rows.Inside(y));
}

// Whether the surface lies wholly inside the curve, so that no pixel of it shows.
bool Encloses(const PlaneBox& box, const PlaneBox& clip) {
  if (clip.y1 <= box.y1 || clip.y2 > box.y2) return false;
  const auto holds = [&](gint64 y) {
    const Span row = EnclosedRow(box, y);
    return row.First < clip.x1 && row.Last >= clip.x2;
  };
  return holds(clip.y1 - 1) && holds(clip.y2);
}

// The outline of a box, one pixel wide.
void PaintOutline(Drawable& drawable, guint32 rgb, const PlaneBox& box) {
  const PlaneBox part = PartOf(drawable, box);
  if (part.Empty() || Encloses(box, BoxOf(drawable))) return;
  OutlineRows rows(box);
  for (gint64 y = part.y1; y < part.y2; ++y) {
    const Span row = rows.Enclosed(y);
    const Span hole = rows.Inside(y);
    if (hole.Empty()) {
      FillRow(drawable, rgb, y, row);
    } else {
      FillRow(drawable, rgb, y, {row.First, hole.First - 1});
      FillRow(drawable, rgb, y, {hole.Last + 1, row.Last});
    }
  }
}

// Whether the first box reaches beyond the second one.
bool Exceeds(const PlaneBox& box, const PlaneBox& other) {
  return box.x1 < other.x1 || box.y1 < other.y1 || box.x2 > other.x2 || box.y2 > other.y2;
}

}  // namespace

void DrawCrcl1(Drawable* drawable, DrawGc* gc, gint filled, gint x1, gint y1, gint x2, gint y2) {
  const PlaneBox box = Normalised(x1, y1, x2, y2);
  if (filled) {
    FillEllipse(*drawable, gc->Foreground, box);
  } else {
    PaintOutline(*drawable, gc->Foreground, box);
  }
}

void DrawCrcl(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint width,
              gint position, gint line, gint fill) {
  gc->Dashes = nullptr;
  // As with rectangles the corners are moved as given, so with swapped ones an inset grows the box.
  const auto outlineAt = [=](gint64 inset) {
    return Normalised(x1 + inset, y1 + inset, x2 - inset, y2 - inset);
  };
  const bool outlined = width > 0 && IsColour(line);
  const OffsetRange insets = outlined ? OutlineInsets(width, position) : OffsetRange{0, -1};
  if (IsColour(fill)) {
    gc->Foreground = DrawColr[fill].pixel;
    PlaneBox filled = outlineAt(0);
    FillEllipse(*drawable, gc->Foreground, filled);
    // Outlines beyond the box leave dots free between each other and the box; the ground does not
    // show there either. What an outline encloses holds all within it.
    for (gint64 inset = insets.Low; inset <= insets.High; ++inset) {
      if (const PlaneBox box = outlineAt(inset); Exceeds(box, filled)) {
        FillInside(*drawable, gc->Foreground, box);
        filled = box;
      }
    }
  }
  if (outlined) {
    gc->Foreground = DrawColr[line].pixel;
    for (gint64 inset = insets.Low; inset <= insets.High; ++inset) {
      PaintOutline(*drawable, gc->Foreground, outlineAt(inset));
    }
  }
}
