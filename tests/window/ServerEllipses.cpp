// The program paints ellipses itself: a filled one equals the display's in every pixel, and its
// outline runs where the display's does.
#include <gtest/gtest.h>

#include <random>

#include "render/Primitives.h"
#include "tests/window/ServerArc.h"

namespace {

constexpr gint Margin = ServerArc::Margin;

gint RowLength(const ServerArc& arc) {
  return arc.Width + 1 + 2 * Margin;
}

// As the display's picture of it: "#" for ink.
std::string Painted(const ServerArc& arc, gint filled) {
  Drawable surface(RowLength(arc), arc.Height + 1 + 2 * Margin, -Margin, -Margin);
  DrawGc gc;
  gc.Foreground = 0xffffff;
  DrawCrcl1(&surface, &gc, filled, 0, 0, arc.Width, arc.Height);
  std::string pixels;
  for (gint y = 0; y < surface.Height(); ++y) {
    for (gint x = 0; x < surface.Width(); ++x) {
      pixels += surface.Row(y)[x] == 0xff000000 ? '.' : '#';
    }
  }
  return pixels;
}

// Whether each dot of one outline has a dot of the other beside it or in its own place.
bool RunsAlong(const std::string& one, const std::string& other, gint rowLength) {
  for (gint dot = 0; dot < std::ssize(one); ++dot) {
    if (one[static_cast<gsize>(dot)] == '.') continue;
    bool near = false;
    for (const gint row : {-rowLength, 0, rowLength}) {
      for (const gint column : {-1, 0, 1}) {
        near = near || other.at(static_cast<gsize>(dot + row + column)) == '#';
      }
    }
    if (!near) return false;
  }
  return true;
}

void ExpectAsTheDisplay(std::vector<ServerArc> arcs) {
  ASSERT_TRUE(DrawOnServer(arcs));
  for (const ServerArc& arc : arcs) {
    EXPECT_TRUE(Painted(arc, 1) == arc.Filled) << "filled " << arc.Width << " x " << arc.Height;
    const std::string outline = Painted(arc, 0);
    const gint rowLength = RowLength(arc);
    EXPECT_TRUE(RunsAlong(outline, arc.Outline, rowLength) &&
                RunsAlong(arc.Outline, outline, rowLength))
        << "outline of " << arc.Width << " x " << arc.Height;
  }
}

TEST(ServerEllipses, EverySmallBox) {
  for (int width = 1; width <= 64; ++width) {
    std::vector<ServerArc> arcs;
    for (int height = 1; height <= 64; ++height) arcs.push_back({width, height, "", ""});
    ExpectAsTheDisplay(arcs);
  }
}

TEST(ServerEllipses, LargeBoxes) {
  std::vector<ServerArc> arcs = {{9000, 5, "", ""}, {7, 9000, "", ""}};
  std::mt19937 random(12);
  const auto pick = [&random] { return std::uniform_int_distribution<int>(65, 1200)(random); };
  for (int count = 0; count < 20; ++count) arcs.push_back({pick(), pick(), "", ""});
  ExpectAsTheDisplay(arcs);
}

}  // namespace
