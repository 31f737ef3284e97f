// Random items and layouts, painted and compared pixel by pixel with the rules said a second time.
#include <gtest/gtest.h>

#include <vector>

#include "tests/render/RandomItems.h"
#include "tests/render/SampleLayout.h"

namespace {

constexpr gint Extent = 120;
constexpr int Rounds = 400;

class Offsets : public testing::Test {
 protected:
  // Paints many items, each alone.
  template <typename Make>
  void CheckEach(Make make) {
    for (int round = 0; round < Rounds; ++round) {
      const RandomItem random = make();
      PlainPicture expected(Extent, Extent, Ink::Cream);
      random.Draw(expected);
      Drawable painted(Extent, Extent);
      PaintBack(painted, Ink::Cream);
      PaintItem(painted, random.Item);
      ASSERT_TRUE(expected.Equals(painted))
          << "round " << round << ", points " << random.Item.Point1.x << ", "
          << random.Item.Point1.y << ", " << random.Item.Point2.x << ", " << random.Item.Point2.y;
    }
  }

  RandomItems items_{20261121};

 private:
  Scene scene_;
};

TEST_F(Offsets, OfLevelAndUprightLines) {
  CheckEach([this] { return items_.Line(); });
}

TEST_F(Offsets, OfRectangles) {
  CheckEach([this] { return items_.Rectangle(); });
}

TEST_F(Offsets, OfFramedBoxes) {
  CheckEach([this] { return items_.Frame(); });
}

TEST_F(Offsets, OfBarGraphs) {
  CheckEach([this] { return items_.BarGraph(); });
}

TEST_F(Offsets, OfButtons) {
  CheckEach([this] { return items_.Button(); });
}

TEST_F(Offsets, OfScrollBarsOutsideTheirArrows) {
  CheckEach([this] { return items_.ScrollBar(true); });
}

TEST_F(Offsets, OfScrollBarsWithoutArrows) {
  CheckEach([this] { return items_.ScrollBar(false); });
}

// Many items over each other: by layer, then by type, then by their place in the store.
TEST_F(Offsets, OfWholeLayouts) {
  constexpr gint order[] = {TypeFrame, TypeRectangle, TypeBarGraph,
                            TypeLine,  TypeScrollBar, TypeButton};
  for (int round = 0; round < 60; ++round) {
    IntPtrnData();
    SetHeader(Extent, Extent);
    std::vector<RandomItem> layout;
    for (int count = items_.Pick(0, 40); count > 0; --count) {
      switch (items_.Pick(0, 5)) {
        case 0:
          layout.push_back(items_.Frame());
          break;
        case 1:
          layout.push_back(items_.Line());
          break;
        case 2:
          layout.push_back(items_.Rectangle());
          break;
        case 3:
          layout.push_back(items_.BarGraph());
          break;
        case 4:
          layout.push_back(items_.Button());
          break;
        default:
          layout.push_back(items_.ScrollBar(false));
      }
      layout.back().Item.Parm[ItemSlot::TopLayer] = items_.Pick(0, 1);
      AddItems({layout.back().Item});
    }
    PlainPicture expected(Extent, Extent, Ink::Cream);
    for (const gint layer : {0, 1}) {
      for (const gint type : order) {
        for (const RandomItem& random : layout) {
          if (random.Item.Type == type && random.Item.Parm[ItemSlot::TopLayer] == layer) {
            random.Draw(expected);
          }
        }
      }
    }
    ASSERT_TRUE(expected.Equals(*PaintLayout())) << "round " << round;
  }
}

// Slanted lines are one-dot lines side by side; the first seven shifts, written out.
TEST_F(Offsets, OfSlantedLines) {
  constexpr gint shifts[7] = {0, -1, -1, 0, -2, 1, -3};
  for (int round = 0; round < Rounds; ++round) {
    const gint x1 = items_.Pick(-20, 140);
    const gint y1 = items_.Pick(-20, 140);
    const gint x2 = items_.Pick(-20, 140);
    const gint y2 = items_.Pick(-20, 140);
    if (x1 == x2 || y1 == y2) continue;
    const gint width = items_.Pick(2, 7);
    const gint style = items_.Pick(0, 2);
    const bool steep = std::abs(x1 - x2) < std::abs(y1 - y2);

    Drawable expected(Extent, Extent);
    PaintBack(expected, Ink::Cream);
    DrawGc gc;
    for (gint k = 0; k < width; ++k) {
      const gint dx = steep ? shifts[k] : 0;
      const gint dy = steep ? 0 : shifts[k];
      DrawLine(&expected, &gc, x1 + dx, y1 + dy, x2 + dx, y2 + dy, style, 1, 0, Ink::Navy);
    }
    Drawable painted(Extent, Extent);
    PaintBack(painted, Ink::Cream);
    PaintItem(painted, LineItem(x1, y1, x2, y2, style, width, items_.Pick(0, 2)));
    for (gint y = 0; y < Extent; ++y) {
      for (gint x = 0; x < Extent; ++x) {
        ASSERT_EQ(painted.At(x, y), expected.At(x, y))
            << "round " << round << " at " << x << ", " << y;
      }
    }
  }
}

// The comparison itself tells a single wrong pixel.
TEST_F(Offsets, AreComparedToThePixel) {
  PlainPicture expected(Extent, Extent, Ink::Cream);
  Drawable painted(Extent, Extent);
  PaintBack(painted, Ink::Cream);
  EXPECT_TRUE(expected.Equals(painted));
  expected.Plot(119, 119, Ink::Red);
  EXPECT_FALSE(expected.Equals(painted));
  expected.Plot(119, 119, PlainPicture::Anything);
  EXPECT_TRUE(expected.Equals(painted));
}

}  // namespace
