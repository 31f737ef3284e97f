#include "tools/RenderChanges.h"

#include <algorithm>
#include <array>

#include "layout/ItemTypes.h"
#include "layout/Records.h"
#include "layout/Store.h"
#include "render/Primitives.h"
#include "render/Surface.h"
#include "render/surface/Plane.h"
#include "tools/InputFile.h"
#include "tools/LayoutView.h"
#include "tools/Report.h"
#include "tools/compare/Changes.h"

namespace {

// An outline is a coloured band with white gaps inside a white line, so that it stands out on any
// picture; colour and dashes tell the kind.
struct OutlineStyle {
  guint32 Colour;
  gint On;
  gint Off;
};

constexpr OutlineStyle AddedStyle{0x00a000, 1, 0};
constexpr OutlineStyle ChangedStyle{0x0060ff, 12, 4};
constexpr OutlineStyle RemovedStyle{0xe00000, 3, 3};
constexpr guint32 White = 0xffffff;
constexpr gint Distance = 2;  // from the item to the band
constexpr gint Band = 2;

// The box that an item takes once it has been painted, corners in order.
ItemBox PaintedBox(const PTRNDATA& item) {
  ItemBox box = ItemBoxOf(item);
  if (!HasTwoPoints(item.Type)) {
    box.X2 = OnPlane(box.X1 + OnPlane(item.Size.cx));
    box.Y2 = OnPlane(box.Y1 + OnPlane(item.Size.cy));
  }
  return {std::min(box.X1, box.X2), std::min(box.Y1, box.Y2), std::max(box.X1, box.X2),
          std::max(box.Y1, box.Y2)};
}

ItemBox Grown(const ItemBox& box, gint by) {
  return {box.X1 - by, box.Y1 - by, box.X2 + by, box.Y2 + by};
}

// Paints a layout for the sizes of its items alone.
void FindSizes(Layout& layout) {
  const LayoutPicture painted(layout);
}

// The boxes of all items of a layout that has been painted.
std::vector<ItemBox> PaintedBoxes(const Layout& layout) {
  std::vector<ItemBox> boxes;
  boxes.reserve(layout.Items.size());
  for (const PTRNDATA& item : layout.Items) boxes.push_back(PaintedBox(item));
  return boxes;
}

// Dashes of a band along x; `length` runs from `x`.
void BandAcross(Drawable& canvas, gint x, gint y, gint length, const OutlineStyle& style) {
  FillPixels(&canvas, x, y, length, Band, style.Off == 0 ? style.Colour : White);
  for (gint at = 0; style.Off != 0 && at < length; at += style.On + style.Off) {
    FillPixels(&canvas, x + at, y, std::min(style.On, length - at), Band, style.Colour);
  }
}

void BandDown(Drawable& canvas, gint x, gint y, gint length, const OutlineStyle& style) {
  FillPixels(&canvas, x, y, Band, length, style.Off == 0 ? style.Colour : White);
  for (gint at = 0; style.Off != 0 && at < length; at += style.On + style.Off) {
    FillPixels(&canvas, x, y + at, Band, std::min(style.On, length - at), style.Colour);
  }
}

void WhiteLine(Drawable& canvas, const ItemBox& box) {
  const gint width = box.Width();
  const gint height = box.Height();
  FillPixels(&canvas, box.X1, box.Y1, width, 1, White);
  FillPixels(&canvas, box.X1, box.Y2 - 1, width, 1, White);
  FillPixels(&canvas, box.X1, box.Y1, 1, height, White);
  FillPixels(&canvas, box.X2 - 1, box.Y1, 1, height, White);
}

void Outline(Drawable& canvas, const ItemBox& item, int zoom, const OutlineStyle& style) {
  ItemBox box = Grown(Zoomed(item, zoom), Distance + Band);
  // What lies far outside is cut; its outline then runs just outside the picture.
  const gint reach = 4 * (Distance + Band);
  box = {std::clamp(box.X1, -reach, canvas.Width() + reach),
         std::clamp(box.Y1, -reach, canvas.Height() + reach),
         std::clamp(box.X2, -reach, canvas.Width() + reach),
         std::clamp(box.Y2, -reach, canvas.Height() + reach)};
  WhiteLine(canvas, Grown(box, 1));
  BandAcross(canvas, box.X1, box.Y1, box.Width(), style);
  BandAcross(canvas, box.X1, box.Y2 - Band, box.Width(), style);
  BandDown(canvas, box.X1, box.Y1, box.Height(), style);
  BandDown(canvas, box.X2 - Band, box.Y1, box.Height(), style);
}

// Removed items stay where they were, changed and added ones where they are.
void OutlineChanges(Drawable& canvas, int zoom, const LayoutChanges& changes,
                    const std::vector<ItemBox>& before, const std::vector<ItemBox>& after) {
  for (const std::size_t no : changes.Removed) Outline(canvas, before[no], zoom, RemovedStyle);
  for (const ChangedItem& item : changes.Changed) {
    Outline(canvas, after[item.Items.After], zoom, ChangedStyle);
  }
  for (const std::size_t no : changes.Added) Outline(canvas, after[no], zoom, AddedStyle);
}

}  // namespace

int RenderChanges(const RenderOptions& options) {
  std::optional<Layout> before = ReadLayout(options.Before);
  std::optional<Layout> after = ReadLayout(options.After);
  if (!before || !after) return ExitFailed;
  // Before the painting: the sizes that it finds are no differences.
  const LayoutChanges changes = CompareLayouts(*before, *after);
  if (const std::string fault = DrawingFault(*before); !fault.empty()) {
    return Fail(options.Before, fault);
  }
  FindSizes(*before);
  if (const std::string fault = DrawingFault(*after); !fault.empty()) {
    return Fail(options.After, fault);
  }
  const CanvasPicture canvas = PaintCanvas(*after, options.Zoom, options.Grid);
  if (!canvas.Surface) return Fail(options.After, canvas.Error);
  OutlineChanges(*canvas.Surface, options.Zoom, changes, PaintedBoxes(*before),
                 PaintedBoxes(*after));
  return WritePng(*canvas.Surface, options.Folder.c_str())
             ? Print(ShownPath(options.Folder) + "\n")
             : Fail(options.Folder, "cannot be written");
}
