// Dragging each handle of each kind of shape.
#include <gtest/gtest.h>

#include "PtrnData.h"
#include "tests/edit/EditFixture.h"

namespace {

struct Drag {
  const char* Name;
  gint Type;
  gint Hit;
  POINT From;
  POINT To;
  const char* Points;
};

void PrintTo(const Drag& drag, std::ostream* out) {
  *out << drag.Name;
}

class MouseDragTest : public EditFixture, public testing::WithParamInterface<Drag> {};

TEST_P(MouseDragTest, ChangesOnlyWhatTheHandleHolds) {
  const Drag& drag = GetParam();
  PtrnData = MakeItem(drag.Type, 40, 20, 100, 60);
  PtrnMode = ModeSelected;
  PtrnType = drag.Type;
  Press(drag.From.x, drag.From.y);
  ASSERT_EQ(PtrnPost, drag.Hit);
  Move(150, 90);
  Move(drag.To.x, drag.To.y);
  EXPECT_EQ(PointsOf(PtrnData), drag.Points);
  EXPECT_EQ(PtrnData.Parm[0], 40) << "the parameters wait for the commit";
}

std::string NameOf(const testing::TestParamInfo<Drag>& info) {
  return info.param.Name;
}

INSTANTIATE_TEST_SUITE_P(
    Box, MouseDragTest,
    testing::Values(Drag{"BoxPoint1", TypeRectangle, 1, {40, 20}, {30, 15}, "(30,15)-(100,60)"},
                    Drag{"BoxPoint2", TypeRectangle, 2, {100, 60}, {110, 75}, "(40,20)-(110,75)"},
                    Drag{"BoxCorner3", TypeRectangle, 3, {40, 60}, {35, 66}, "(35,20)-(100,66)"},
                    Drag{"BoxCorner4", TypeRectangle, 4, {100, 20}, {90, 12}, "(40,12)-(90,60)"},
                    Drag{"BoxTop", TypeRectangle, 5, {70, 20}, {75, 11}, "(40,11)-(100,60)"},
                    Drag{"BoxBottom", TypeRectangle, 6, {70, 60}, {75, 80}, "(40,20)-(100,80)"},
                    Drag{"BoxLeft", TypeRectangle, 7, {40, 40}, {33, 55}, "(33,20)-(100,60)"},
                    Drag{"BoxRight", TypeRectangle, 8, {100, 40}, {120, 55}, "(40,20)-(120,60)"},
                    Drag{"BoxBody", TypeRectangle, 9, {52, 20}, {62, 25}, "(50,25)-(110,65)"},
                    Drag{"ButtonCorner", TypeButton, 2, {98, 58}, {120, 70}, "(40,20)-(120,70)"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Line, MouseDragTest,
    testing::Values(Drag{"LinePoint1", TypeLine, 1, {40, 20}, {10, 90}, "(10,90)-(100,60)"},
                    Drag{"LinePoint2", TypeLine, 2, {100, 60}, {20, 5}, "(40,20)-(20,5)"},
                    Drag{"LineBody", TypeLine, 9, {70, 40}, {60, 45}, "(30,25)-(90,65)"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Ellipse, MouseDragTest,
    testing::Values(Drag{"EllipseTop", TypeEllipse, 5, {70, 20}, {99, 10}, "(40,10)-(100,60)"},
                    Drag{"EllipseBottom", TypeEllipse, 6, {70, 60}, {99, 70}, "(40,20)-(100,70)"},
                    Drag{"EllipseLeft", TypeEllipse, 7, {40, 40}, {20, 99}, "(20,20)-(100,60)"},
                    Drag{"EllipseRight", TypeEllipse, 8, {100, 40}, {140, 9}, "(40,20)-(140,60)"},
                    Drag{"EllipseBody", TypeEllipse, 9, {91, 26}, {81, 16}, "(30,10)-(90,50)"}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Anchor, MouseDragTest,
    testing::Values(Drag{"TextBody", TypeFixedString, 9, {42, 22}, {52, 32}, "(50,30)-(110,70)"},
                    Drag{"CheckBoxBody", TypeCheckBox, 9, {44, 16}, {40, 10}, "(36,14)-(96,54)"}),
    NameOf);

class MouseDragLimits : public EditFixture {};

TEST_F(MouseDragLimits, FarAwayPointsOfADamagedFileDoNotOverflow) {
  PtrnData = MakeItem(TypeRectangle, G_MAXINT, G_MININT, G_MAXINT - 5, 0);
  PtrnMode = ModeDragging;
  PtrnPost = 9;
  PtrnPoint1 = PtrnData.Point1;
  PtrnPoint2 = PtrnData.Point2;
  PtrnPoint3 = {10, 50};
  Move(20, 40);
  EXPECT_EQ(PointsOf(PtrnData), "(2147483647,-2147483648)-(2147483647,-10)");
}

}  // namespace
