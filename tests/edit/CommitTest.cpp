// The buttons of the tool box: register, delete, cancel, copy, redraw.
#include <gmock/gmock.h>

#include "PtrnData.h"
#include "support/Resource.h"
#include "support/Text.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

enum Button { Register = 0, Delete = 1, Cancel = 2, Copy = 3, Redraw = 4 };

class CommitTest : public EditFixture {
 protected:
  static void Push(Button button) { ToolBoxButn(nullptr, Entry(button)); }
  // A rectangle in the store and in hand.
  static void PickStored() {
    PtrnData = MakeValidItem(TypeRectangle, 10, 20, 50, 60);
    AddPtrnData(&PtrnData);
    PtrnNo = 0;
    PtrnType = TypeRectangle;
    PtrnMode = ModeSelected;
  }
};

TEST_F(CommitTest, RegisteringANewItemAppendsIt) {
  PickStored();
  PtrnNo = -1;
  PtrnData.Point1 = {12, 22};
  PtrnData.Point2 = {52, 62};
  Push(Register);
  ASSERT_EQ(GetPtrnCount(), 2);
  const PTRNDATA item = Stored(1);
  EXPECT_EQ(PointsOf(item), "(12,22)-(52,62)");
  EXPECT_THAT(PointParmsOf(item), ElementsAre(12, 22, 52, 62));
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMainMenu", "SetCursor 0", "SetMenuActive1",
                                         "SetMenuActive2 16", "DrawRequest 1"));
}

TEST_F(CommitTest, RegisteringAPickedItemReplacesIt) {
  PickStored();
  PtrnData.Point2 = {70, 80};
  Push(Register);
  ASSERT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PointsOf(Stored(0)), "(10,20)-(70,80)");
  EXPECT_EQ(Stored(0).Parm[3], 80);
}

TEST_F(CommitTest, ARefusedItemStaysInHandAndNothingElseHappens) {
  PickStored();
  PtrnData.Parm[15] = 0;
  Push(Register);
  EXPECT_THAT(Screen.Take(),
              ElementsAre("Dlg_MessageBox 入力エラー|線幅/枠幅 (設定範囲 0 〜 99)||1"));
  EXPECT_EQ(PtrnMode, ModeSelected);
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(PtrnSaveCount, 0);
  EXPECT_EQ(Stored(0).Parm[15], 1);
}

TEST_F(CommitTest, TheSnapshotHoldsTheLayoutBeforeTheChange) {
  PickStored();
  PtrnData.Point2 = {70, 80};
  Push(Register);
  PopPtrnData();
  EXPECT_EQ(PointsOf(Stored(0)), "(10,20)-(50,60)");
}

TEST_F(CommitTest, AnOnePointItemKeepsItsOtherParameters) {
  PtrnData = MakeValidItem(TypeFixedString, 10, 20, 77, 88);
  PtrnData.Point1 = {30, 40};
  PtrnNo = -1;
  Push(Register);
  const PTRNDATA item = Stored(0);
  EXPECT_THAT(PointParmsOf(item), ElementsAre(30, 40, 77, 88));
}

TEST_F(CommitTest, TheLengthOfACaptionIsThatOfTheShownLanguage) {
  for (const gint type : {TypeFixedString, TypeRadioButton, TypeCheckBox}) {
    for (gint language = 0; language < 3; ++language) {
      PtrnData = MakeValidItem(type, 10, 20, 0, 0);
      CopyText(PtrnData.Text1, "\xC5\xB9\xCE\xC0");  // two characters of two bytes
      CopyText(PtrnData.Text2, "lamp");
      CopyText(PtrnData.Text3, "Leuchte");
      PtrnNo = -1;
      Language = language;
      Push(Register);
      const gint expected = language == 2 ? 7 : 4;
      EXPECT_EQ(Stored(GetPtrnCount() - 1).Parm[16], expected) << type << " " << language;
    }
  }
}

TEST_F(CommitTest, CursorKeysArePackedForInputFields) {
  Screen.CursorKeys = 11;
  for (const gint type : {TypeVariableString, TypeNumeric}) {
    PtrnData = MakeValidItem(type, 10, 20, 0, 0);
    PtrnNo = -1;
    Push(Register);
    EXPECT_EQ(Stored(GetPtrnCount() - 1).Parm[27], 11) << type;
  }
  PtrnData = MakeValidItem(TypeRadioButton, 10, 20, 0, 0);
  PtrnData.Parm[27] = 3;
  Push(Register);
  EXPECT_EQ(Stored(2).Parm[27], 3);
  EXPECT_EQ(Screen.Count("SetToolBoxCursor"), 2);
}

TEST_F(CommitTest, TheDefaultsOfATypeAreWrittenOnRequest) {
  PickStored();
  for (gint i = 4; i < 30; ++i) PtrnData.Parm[i] = i;
  Push(Register);
  EXPECT_FALSE(Folder.Exists("program/VarnixMaster.ini"));
  PtrnData.CheckFlag = 1;
  Push(Register);
  EXPECT_EQ(gint{PtrnData.CheckFlag}, 0);
  EXPECT_EQ(Folder.Read("program/VarnixMaster.ini"),
            "[PTRNDATA]\n"
            "PTRN-03=4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,26,27,28,29\n");
}

TEST_F(CommitTest, DeletingRemovesThePickedItem) {
  PickStored();
  const PTRNDATA other = MakeValidItem(TypeEllipse, 1, 2, 3, 4);
  AddPtrnData(&other);
  Push(Delete);
  ASSERT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(Stored(0).Type, TypeEllipse);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(PtrnMode, ModeIdle);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMainMenu", "SetCursor 0", "SetMenuActive1",
                                         "SetMenuActive2 16", "DrawRequest 1"));
  PopPtrnData();
  EXPECT_EQ(GetPtrnCount(), 2);
}

TEST_F(CommitTest, CancellingStoresNothingAndKeepsThePanel) {
  PickStored();
  PtrnData.Point2 = {70, 80};
  Push(Cancel);
  EXPECT_EQ(PointsOf(Stored(0)), "(10,20)-(50,60)");
  EXPECT_EQ(PtrnFlag, 1);
  EXPECT_EQ(PtrnType, TypeRectangle);
  EXPECT_THAT(Screen.Take(),
              ElementsAre("SetCursor 0", "SetMenuActive1", "SetMenuActive2 16", "DrawRequest 1"));
}

TEST_F(CommitTest, RedrawingClosesThePanel) {
  PickStored();
  Push(Redraw);
  EXPECT_EQ(PtrnType, 0);
  EXPECT_THAT(Screen.Take(), ElementsAre("SetMenuActive1", "SetCursor 0", "SaveToolBox",
                                         "Dlg_ToolBox 0", "DrawRequest 1"));
}

TEST_F(CommitTest, CopiesStandInARowAndAreNumbered) {
  PickStored();
  PTRNDATA stored = Stored(0);
  stored.ID_No = 9998;
  SetPtrnData(0, &stored);
  PtrnData.Point1 = {99, 99};  // not registered, so not copied
  Screen.CopyMove = [](DLGPARM& parm) {
    parm = {3, 5, 7, 1};
    return 1;
  };
  Push(Copy);
  ASSERT_EQ(GetPtrnCount(), 4);
  EXPECT_EQ(PointsOf(Stored(1)), "(15,27)-(55,67)");
  EXPECT_EQ(PointsOf(Stored(2)), "(20,34)-(60,74)");
  EXPECT_EQ(PointsOf(Stored(3)), "(25,41)-(65,81)");
  EXPECT_EQ(Stored(3).Parm[2], 65);
  EXPECT_EQ(gint{Stored(1).ID_No}, 9999);
  EXPECT_EQ(gint{Stored(2).ID_No}, 0);
  EXPECT_EQ(gint{Stored(3).ID_No}, 1);
  EXPECT_EQ(PtrnSaveCount, 1);
  EXPECT_EQ(PtrnFlag, 2);
  EXPECT_EQ(Screen.Count("Dlg_ToolCopy"), 1);
}

TEST_F(CommitTest, TheCopyDialogComesBackWithItsLastValues) {
  PickStored();
  Screen.CopyMove = [](DLGPARM& parm) {
    parm = {1, 5, 7, 2};
    return 1;
  };
  Push(Copy);
  DLGPARM shown{};
  Screen.CopyMove = [&shown](DLGPARM& parm) {
    shown = parm;
    return 0;
  };
  Push(Copy);
  EXPECT_EQ(shown.xdot, 5);
  EXPECT_EQ(shown.code, 2);
}

TEST_F(CommitTest, ACancelledCopyTakesNoSnapshot) {
  PickStored();
  Push(Copy);
  EXPECT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(PtrnSaveCount, 0);
  EXPECT_EQ(PtrnFlag, 1);
}

TEST_F(CommitTest, NumbersOfADamagedFileDoNotOverflowInACopy) {
  PtrnData = MakeValidItem(TypeRectangle, G_MAXINT - 3, 0, G_MAXINT, 10);
  PtrnData.ID_No = G_MAXINT;
  AddPtrnData(&PtrnData);
  PtrnNo = 0;
  Screen.CopyMove = [](DLGPARM& parm) {
    parm = {1, 10, 0, 9999};
    return 1;
  };
  Push(Copy);
  EXPECT_EQ(PointsOf(Stored(1)), "(2147483647,0)-(2147483647,10)");
  EXPECT_EQ(gint{Stored(1).ID_No}, 3646);
}

}  // namespace
