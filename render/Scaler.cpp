#include "Scaler.h"

#include <vector>

namespace {

// The tables that the scaler makes for each call cost as much as scaling some 256 pixels: a cell of
// one colour must be as large to be worth a call more.
constexpr gint64 CellWidth = 32;
constexpr gint64 CellHeight = 8;

// Columns that are left to the scaler, in neighbouring rows of cells.
using Columns = std::vector<OffsetRange>;

class PartScaler {
 public:
  PartScaler(const GdkPixbuf* picture, GdkPixbuf* scaled, const PlaneBox& box, const PlaneBox& part)
      : picture_(picture),
        scaled_(scaled),
        in_(gdk_pixbuf_read_pixels(picture)),
        out_(gdk_pixbuf_get_pixels(scaled)),
        left_(part.x1 - box.x1),
        top_(part.y1 - box.y1),
        width_(part.x2 - part.x1),
        height_(part.y2 - part.y1),
        scaleX_(static_cast<double>(box.x2 - box.x1) / gdk_pixbuf_get_width(picture)),
        scaleY_(static_cast<double>(box.y2 - box.y1) / gdk_pixbuf_get_height(picture)) {}

  void Run() {
    Columns columns;
    gint64 begin = 0;
    for (gint64 y = 0; y < height_; y += CellHeight) {
      Columns next = FillPlainCells(y, std::min(y + CellHeight, height_));
      if (!SameColumns(next, columns)) {
        Scale(columns, begin, y);
        columns = std::move(next);
        begin = y;
      }
    }
    Scale(columns, begin, height_);
  }

 private:
  static bool SameColumns(const Columns& a, const Columns& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
      return x.low == y.low && x.high == y.high;
    });
  }

  // Paints the cells of one colour of a row of cells; the columns of the others.
  Columns FillPlainCells(gint64 y1, gint64 y2) {
    Columns columns;
    for (gint64 x = 0; x < width_; x += CellWidth) {
      const PlaneBox cell{x, y1, std::min(x + CellWidth, width_), y2};
      const guchar* colour = OnlyColour(SourceOfCell(cell));
      if (colour != nullptr) {
        Fill(cell, colour);
      } else if (!columns.empty() && columns.back().high == x) {
        columns.back().high = cell.x2;
      } else {
        columns.push_back({x, cell.x2});
      }
    }
    return columns;
  }

  PlaneBox SourceOfCell(const PlaneBox& cell) const {
    const OffsetRange columns = SourceOf(left_ + cell.x1, left_ + cell.x2, scaleX_);
    const OffsetRange rows = SourceOf(top_ + cell.y1, top_ + cell.y2, scaleY_);
    return PlaneBox{columns.low, rows.low, columns.high, rows.high}.Clip(
        {0, 0, gdk_pixbuf_get_width(picture_), gdk_pixbuf_get_height(picture_)});
  }

  // A pixel of the source when all are alike and hide what is below, else null.
  const guchar* OnlyColour(const PlaneBox& source) const {
    const auto channels = static_cast<std::size_t>(gdk_pixbuf_get_n_channels(picture_));
    const auto stride = static_cast<std::size_t>(gdk_pixbuf_get_rowstride(picture_));
    const guchar* first = in_ + static_cast<std::size_t>(source.y1) * stride +
                          static_cast<std::size_t>(source.x1) * channels;
    const auto bytes = static_cast<std::size_t>(source.x2 - source.x1) * channels;
    if (channels == 4 && first[3] != 255) {
      return nullptr;
    }
    const guchar* row = first;
    for (gint64 y = source.y1; y < source.y2; ++y, row += stride) {
      if (std::memcmp(row, first, channels) != 0 ||
          std::memcmp(row, row + channels, bytes - channels) != 0) {
        return nullptr;
      }
    }
    return first;
  }

  void Fill(const PlaneBox& cell, const guchar* colour) {
    const gint channels = gdk_pixbuf_get_n_channels(scaled_);
    const gint stride = gdk_pixbuf_get_rowstride(scaled_);
    guchar* first = out_ + cell.y1 * stride + cell.x1 * channels;
    const auto bytes = static_cast<std::size_t>((cell.x2 - cell.x1) * channels);
    for (std::size_t i = 0; i < bytes; i += static_cast<std::size_t>(channels)) {
      std::memcpy(first + i, colour, static_cast<std::size_t>(channels));
    }
    for (gint64 y = cell.y1 + 1; y < cell.y2; ++y) {
      std::memcpy(first + (y - cell.y1) * stride, first, bytes);
    }
  }

  void Scale(const Columns& columns, gint64 y1, gint64 y2) {
    for (const OffsetRange& range : columns) {
      gdk_pixbuf_scale(picture_, scaled_, static_cast<int>(range.low), static_cast<int>(y1),
                       static_cast<int>(range.high - range.low), static_cast<int>(y2 - y1),
                       static_cast<double>(-left_), static_cast<double>(-top_), scaleX_, scaleY_,
                       GDK_INTERP_BILINEAR);
    }
  }

  const GdkPixbuf* picture_;
  GdkPixbuf* scaled_;
  const guchar* in_;
  guchar* out_;
  gint64 left_;
  gint64 top_;
  gint64 width_;
  gint64 height_;
  double scaleX_;
  double scaleY_;
};

}  // namespace

PixbufPtr ScaledPart(const GdkPixbuf* picture, const PlaneBox& box, const PlaneBox& part) {
  PixbufPtr scaled(gdk_pixbuf_new(GDK_COLORSPACE_RGB, gdk_pixbuf_get_has_alpha(picture), 8,
                                  static_cast<int>(part.x2 - part.x1),
                                  static_cast<int>(part.y2 - part.y1)));
  if (scaled) {
    PartScaler(picture, scaled.get(), box, part).Run();
  }
  return scaled;
}
