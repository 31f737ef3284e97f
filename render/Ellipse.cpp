#include <optional>
#include <vector>

#include "EllipseRows.h"

namespace {

void FillRow(Drawable& drawable, guint32 rgb, gint64 y, const Span& row) {
  FillBox(drawable, {row.first, y, row.last + 1, y + 1}, rgb);
}

// The part of an outline's box that the surface has.
PlaneBox PartOf(const Drawable& drawable, const PlaneBox& outline) {
  return PlaneBox{outline.x1, outline.y1, outline.x2 + 1, outline.y2 + 1}.Clip(BoxOf(drawable));
}

void FillEllipse(Drawable& drawable, guint32 rgb, const PlaneBox& box) {
  const PlaneBox part = box.Clip(BoxOf(drawable));
  if (part.Empty()) {
    return;
  }
  for (gint64 y = part.y1; y < part.y2; ++y) FillRow(drawable, rgb, y, FilledRow(box, y));
}

// All that lies within an outline.
void FillInside(Drawable& drawable, guint32 rgb, const PlaneBox& outline) {
  const PlaneBox part = PartOf(drawable, outline);
  if (part.Empty()) {
    return;
  }
  OutlineRows rows(outline);
  for (gint64 y = part.y1; y < part.y2; ++y) FillRow(drawable, rgb, y, rows.Inside(y));
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

// The outlines of both boxes, the inner one within the outer one, and what lies between them.
void PaintBand(Drawable& drawable, guint32 rgb, const PlaneBox& outer, const PlaneBox& inner) {
  const PlaneBox part = PartOf(drawable, outer);
  if (part.Empty() || Encloses(inner, BoxOf(drawable))) {
    return;
  }
  OutlineRows innerRows(inner);
  const bool thin = outer.x1 == inner.x1;
  for (gint64 y = part.y1; y < part.y2; ++y) {
    const Span row = thin ? innerRows.Enclosed(y) : EnclosedRow(outer, y);
    const Span hole = innerRows.Inside(y);
    if (hole.Empty()) {
      FillRow(drawable, rgb, y, row);
    } else {
      FillRow(drawable, rgb, y, {row.first, hole.first - 1});
      FillRow(drawable, rgb, y, {hole.last + 1, row.last});
    }
  }
}

// Corners in any order.
struct Corners {
  gint64 x1;
  gint64 y1;
  gint64 x2;
  gint64 y2;

  PlaneBox Normal() const { return Normalised(x1, y1, x2, y2); }
  bool Level() const { return x1 <= x2; }
  bool Upright() const { return y1 <= y2; }
  bool TurnsAs(const Corners& other) const {
    return Level() == other.Level() && Upright() == other.Upright();
  }
};

// The one-pixel outlines that make up a thick one. Each is the corners as given moved by an inset,
// as with rectangles, so with swapped corners an inset grows the box.
class Outlines {
 public:
  Outlines(const Corners& corners, const OffsetRange& insets)
      : corners_(corners), insets_(insets), first_(At(insets.low)), last_(At(insets.high)) {}

  // The outline that lies within all others; empty when there is none.
  std::optional<PlaneBox> Innermost() const {
    if (!Nested()) {
      return std::nullopt;
    }
    return first_.Level() ? last_.Normal() : first_.Normal();
  }

  // Without a gap: what lies between two outlines is painted, too.
  void Paint(Drawable& drawable, guint32 rgb) const {
    if (const std::optional<PlaneBox> inner = Innermost()) {
      PaintBand(drawable, rgb, first_.Level() ? first_.Normal() : last_.Normal(), *inner);
    } else if (first_.TurnsAs(last_)) {
      for (gint64 inset = insets_.low; inset <= insets_.high; ++inset) {
        const PlaneBox box = At(inset).Normal();
        PaintBand(drawable, rgb, box, box);
      }
    } else {
      PaintSwept(drawable, rgb);
    }
  }

 private:
  Corners At(gint64 inset) const {
    return {corners_.x1 + inset, corners_.y1 + inset, corners_.x2 - inset, corners_.y2 - inset};
  }
  bool Nested() const { return first_.TurnsAs(last_) && first_.Level() == first_.Upright(); }

  // Outlines that shrink to nothing on their way and grow again pass all that any of them encloses.
  void PaintSwept(Drawable& drawable, guint32 rgb) const {
    // Of those that lie within one another the outermost does.
    std::vector<PlaneBox> boxes;
    for (gint64 inset = insets_.low; inset <= insets_.high; ++inset) {
      const Corners corners = At(inset);
      if (inset == insets_.low || inset == insets_.high || corners.Level() != corners.Upright()) {
        boxes.push_back(corners.Normal());
      }
    }
    const PlaneBox clip = BoxOf(drawable);
    for (gint64 y = clip.y1; y < clip.y2; ++y) {
      Span row{G_MAXINT64, G_MININT64};
      for (const PlaneBox& box : boxes) {
        if (y < box.y1 || y > box.y2) continue;
        const Span own = EnclosedRow(box, y);
        row = {std::min(row.first, own.first), std::max(row.last, own.last)};
      }
      if (!row.Empty()) FillRow(drawable, rgb, y, row);
    }
  }

  Corners corners_;
  OffsetRange insets_;
  Corners first_;
  Corners last_;
};

}  // namespace

void DrawCrcl1(Drawable* drawable, DrawGc* gc, gint filled, gint x1, gint y1, gint x2, gint y2) {
  const PlaneBox box = Normalised(x1, y1, x2, y2);
  if (filled) {
    FillEllipse(*drawable, gc->Foreground, box);
  } else {
    PaintBand(*drawable, gc->Foreground, box, box);
  }
}

void DrawCrcl(Drawable* drawable, DrawGc* gc, gint x1, gint y1, gint x2, gint y2, gint width,
              gint position, gint line, gint fill) {
  gc->Dashes = nullptr;
  std::optional<Outlines> outlines;
  if (width > 0 && ColourExists(line)) {
    outlines.emplace(Corners{x1, y1, x2, y2}, OutlineInsets(width, position));
  }
  if (ColourExists(fill)) {
    gc->Foreground = DrawColr[fill].pixel;
    const PlaneBox box = Normalised(x1, y1, x2, y2);
    const std::optional<PlaneBox> inner = outlines ? outlines->Innermost() : std::nullopt;
    if (inner && inner->x1 < box.x1) {
      // Nor does the ground show between the box and an outline around it.
      FillInside(*drawable, gc->Foreground, *inner);
    } else {
      FillEllipse(*drawable, gc->Foreground, box);
    }
  }
  if (outlines) {
    gc->Foreground = DrawColr[line].pixel;
    outlines->Paint(*drawable, gc->Foreground);
  }
}
