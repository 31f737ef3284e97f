// Opening and closing the tool box for the item in hand.
#include <gmock/gmock.h>

#include "PtrnData.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;

class ItemInHandTest : public EditFixture {};

TEST_F(ItemInHandTest, ANewItemBeginsWithTheDefaultsOfItsType) {
  WriteProfile(
      "[PTRNDATA]\n"
      "PTRN-03=104,105,106,107,108,109,110,111,112,113,114,115,116,117,118,119,120,121,122,123,124,"
      "125,126,127,128,129\n"
      "PTRN-04=1\n");
  PtrnData = MakeValidItem(TypeLine, 1, 2, 3, 4);
  PtrnNo = 5;
  DispToolBox(0, TypeRectangle);
  EXPECT_EQ(PtrnData.Type, TypeRectangle);
  EXPECT_EQ(PtrnNo, -1);
  for (gint i = 0; i < 4; ++i) EXPECT_EQ(PtrnData.Parm[i], 0) << i;
  for (gint i = 4; i < 30; ++i) EXPECT_EQ(PtrnData.Parm[i], 100 + i) << i;
  EXPECT_STREQ(PtrnData.Text1, "");
  EXPECT_STREQ(PtrnData.ID_Code, "");
  EXPECT_EQ(PointsOf(PtrnData), "(0,0)-(0,0)");
  EXPECT_THAT(Screen.Take(), ElementsAre("SetCursor 0", "SetMenuActive1", "Dlg_ToolBox 3"));
}

TEST_F(ItemInHandTest, WithoutDefaultsANewItemIsAllZeros) {
  DispToolBox(0, TypeSpinButton);
  for (gint i = 0; i < 30; ++i) EXPECT_EQ(PtrnData.Parm[i], 0) << i;
}

TEST_F(ItemInHandTest, AnExistingItemTakesItsPointsFromItsParameters) {
  PtrnData = MakeValidItem(TypeButton, 10, 20, 30, 40);
  PtrnData.Point1 = {1, 1};
  PtrnData.RegstFlag = 1;
  PtrnData.CheckFlag = 1;
  PtrnNo = 5;
  DispToolBox(1, TypeButton);
  EXPECT_EQ(PointsOf(PtrnData), "(10,20)-(30,40)");
  EXPECT_STREQ(PtrnData.ID_Code, "CODE");
  EXPECT_EQ(gint{PtrnData.RegstFlag}, 0);
  EXPECT_EQ(gint{PtrnData.CheckFlag}, 0);
  EXPECT_EQ(PtrnNo, 5);
}

TEST_F(ItemInHandTest, ClearingEndsTheEditing) {
  PtrnType = TypeButton;
  PtrnMode = ModeDragging;
  ClearToolBox();
  EXPECT_EQ(PtrnType, 0);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_THAT(Screen.Take(),
              ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox", "Dlg_ToolBox 0"));
}

}  // namespace
