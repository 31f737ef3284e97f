// From canvas pixels to layout dots.
#include <gtest/gtest.h>

#include "PtrnData.h"
#include "tests/edit/EditFixture.h"

namespace {

struct Conversion {
  ZoomIndex Zoom;
  POINT Canvas;
  POINT Layout;
};

class MousePointInside : public EditFixture, public testing::WithParamInterface<Conversion> {};

TEST_P(MousePointInside, DividesByTheZoomTowardZero) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = GetParam().Zoom;
  POINT point = GetParam().Canvas;
  EXPECT_EQ(MousePoint(&point), 1);
  EXPECT_EQ(point.x, GetParam().Layout.x);
  EXPECT_EQ(point.y, GetParam().Layout.y);
}

INSTANTIATE_TEST_SUITE_P(
    Zooms, MousePointInside,
    testing::Values(Conversion{Zoom500, {499, 494}, {99, 98}},
                    Conversion{Zoom500, {999, 499}, {199, 99}},
                    Conversion{Zoom500, {-1, -4}, {0, 0}}, Conversion{Zoom200, {5, 7}, {2, 3}},
                    Conversion{Zoom100, {0, 0}, {0, 0}}, Conversion{Zoom100, {199, 99}, {199, 99}},
                    Conversion{Zoom75, {1, 2}, {1, 2}}, Conversion{Zoom75, {149, 74}, {198, 98}},
                    Conversion{Zoom50, {99, 49}, {198, 98}}));

class MousePointOutside : public EditFixture, public testing::WithParamInterface<Conversion> {};

TEST_P(MousePointOutside, LeavesThePointAlone) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = GetParam().Zoom;
  POINT point = GetParam().Canvas;
  EXPECT_EQ(MousePoint(&point), 0);
  EXPECT_EQ(point.x, GetParam().Canvas.x);
  EXPECT_EQ(point.y, GetParam().Canvas.y);
}

INSTANTIATE_TEST_SUITE_P(
    Edges, MousePointOutside,
    testing::Values(Conversion{Zoom100, {200, 50}, {}}, Conversion{Zoom100, {50, 100}, {}},
                    Conversion{Zoom100, {-1, 50}, {}}, Conversion{Zoom100, {50, -1}, {}},
                    Conversion{Zoom500, {1000, 10}, {}}, Conversion{Zoom500, {-5, 10}, {}},
                    Conversion{Zoom50, {100, 10}, {}},
                    Conversion{Zoom100, {G_MAXINT, G_MAXINT}, {}},
                    Conversion{Zoom50, {G_MININT, G_MININT}, {}}));

class MousePointTest : public EditFixture {};

TEST_F(MousePointTest, TakesAnUnknownZoomForTheFirst) {
  PtrnHedr.Parm2[ViewSlot::Zoom] = 77;
  POINT point{499, 5};
  EXPECT_EQ(MousePoint(&point), 1);
  EXPECT_EQ(point.x, 99);
  EXPECT_EQ(PtrnHedr.Parm2[ViewSlot::Zoom], 77);
}

TEST_F(MousePointTest, AnEmptyLayoutHasNoInside) {
  PtrnHedr.Parm1[HedrSlot::Width] = 0;
  POINT point{0, 0};
  EXPECT_EQ(MousePoint(&point), 0);
}

}  // namespace
