// Each rule of each type with the message it shows.
#include <gmock/gmock.h>

#include <functional>

#include "PtrnData.h"
#include "support/Resource.h"
#include "support/Text.h"
#include "tests/edit/EditFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* BadPoints = "始点/終点座標設定エラー";
constexpr const char* BadNumber = "識別番号 (設定範囲 0 〜 9999)";
constexpr const char* NoCode = "識別コードの設定が必要です。";
constexpr const char* NoLayoutName = "レイアウト名称の設定が必要です。";
constexpr const char* BadWidth0 = "線幅/枠幅 (設定範囲 0 〜 99)";
constexpr const char* BadWidth1 = "線幅/枠幅 (設定範囲 1 〜 99)";
constexpr const char* BadLimits = "下限値 >= 上限値 は設定できません。";
constexpr const char* NoFixedText = "固定文字列が設定されていません。";
constexpr const char* BadLength = "文字数/桁数 (設定範囲 0 〜 99)";
constexpr const char* BadDecimals = "小数点以下桁数が大きすぎます。";
constexpr const char* BadPosition = "表示位置 (設定範囲 0 〜 999)";
constexpr const char* NoBitmap = "ビットマップ名称が設定されていません。";
constexpr const char* BadDisplayAmount = "表示量 (設定範囲 1 〜 999)";
constexpr const char* BadDataAmount = "データ量 (設定範囲 1 〜 9999)";
constexpr const char* BadStep = "移動量 (設定範囲 1 〜 999)";
constexpr const char* NoStep = "移動量が設定されていません。";
constexpr const char* BadCodeStart = "識別コード先頭文字には英字、アンダースコアのみ使用できます。";

struct Fault {
  const char* Name;
  gint Type;
  std::function<void(PTRNDATA&)> Spoil;
  const char* Message;
};

void PrintTo(const Fault& fault, std::ostream* out) {
  *out << fault.Name;
}

std::function<void(PTRNDATA&)> Parm(gint index, gint value) {
  return [=](PTRNDATA& item) { item.Parm[index] = value; };
}

std::function<void(PTRNDATA&)> Parms(gint index1, gint value1, gint index2, gint value2) {
  return [=](PTRNDATA& item) {
    item.Parm[index1] = value1;
    item.Parm[index2] = value2;
  };
}

std::function<void(PTRNDATA&)> Code(const char* code) {
  return [=](PTRNDATA& item) { CopyText(item.ID_Code, code); };
}

void Flat(PTRNDATA& item) {
  item.Point2.y = item.Point1.y;
}

void Narrow(PTRNDATA& item) {
  item.Point2.x = item.Point1.x;
}

void Dot(PTRNDATA& item) {
  item.Point2 = item.Point1;
}

void NoText(PTRNDATA& item) {
  CopyText(item.Text1, "");
}

class FaultTest : public EditFixture, public testing::WithParamInterface<Fault> {};

TEST_P(FaultTest, ShowsItsMessageAndKeepsTheItem) {
  PtrnData = MakeValidItem(GetParam().Type, 10, 20, 50, 60);
  GetParam().Spoil(PtrnData);
  const std::string points = PointsOf(PtrnData);
  EXPECT_EQ(TestPtrnData(), 0);
  EXPECT_THAT(Screen.Take(),
              ElementsAre(std::string("Dlg_MessageBox 入力エラー|") + GetParam().Message + "||1"));
  EXPECT_EQ(PointsOf(PtrnData), points);
}

std::string NameOf(const testing::TestParamInfo<Fault>& info) {
  return info.param.Name;
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, FaultTest,
    testing::Values(Fault{"FrameFlat", TypeFrame, Flat, BadPoints},
                    Fault{"FrameTopWidth", TypeFrame, Parm(24, -1), BadWidth0},
                    Fault{"FrameBottomWidth", TypeFrame, Parm(25, -1), BadWidth0},
                    Fault{"FrameLeftWidth", TypeFrame, Parm(26, -1), BadWidth0},
                    Fault{"FrameRightWidth", TypeFrame, Parm(27, -1), BadWidth0},
                    Fault{"LineDot", TypeLine, Dot, BadPoints},
                    Fault{"LineWidth", TypeLine, Parm(15, 0), BadWidth1},
                    Fault{"RectangleNarrow", TypeRectangle, Narrow, BadPoints},
                    Fault{"RectangleWidth", TypeRectangle, Parm(15, 0), BadWidth0},
                    Fault{"EllipseFlat", TypeEllipse, Flat, BadPoints},
                    Fault{"EllipseWidth", TypeEllipse, Parm(15, -1), BadWidth0},
                    Fault{"BarFlat", TypeBarGraph, Flat, BadPoints},
                    Fault{"BarWidth", TypeBarGraph, Parm(14, -1), BadWidth0},
                    Fault{"BarOutline", TypeBarGraph, Parm(15, -1), BadWidth0},
                    Fault{"BarLimitsEqual", TypeBarGraph, Parms(16, 5, 17, 5), BadLimits},
                    Fault{"BarLimitsCrossed", TypeBarGraph, Parms(16, 1, 17, 0), BadLimits},
                    Fault{"BarCode", TypeBarGraph, Code(""), NoCode}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Texts, FaultTest,
    testing::Values(Fault{"FixedText", TypeFixedString, NoText, NoFixedText},
                    Fault{"VariableLength", TypeVariableString, Parm(16, 0), BadLength},
                    Fault{"VariableCode", TypeVariableString, Code(""), NoCode},
                    Fault{"NumericLength", TypeNumeric, Parm(16, 0), BadLength},
                    Fault{"NumericDecimalsBelow0", TypeNumeric, Parm(17, -1), BadLength},
                    Fault{"NumericDecimals", TypeNumeric, Parms(16, 3, 17, 3), BadDecimals},
                    Fault{"NumericCode", TypeNumeric, Code(""), NoCode}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Controls, FaultTest,
    testing::Values(Fault{"ButtonFlat", TypeButton, Flat, BadPoints},
                    Fault{"ButtonBorder", TypeButton, Parm(16, 0), BadWidth0},
                    Fault{"ButtonOffset", TypeButton, Parm(14, -1), BadPosition},
                    Fault{"RadioNumber", TypeRadioButton, Parm(27, -1), BadNumber},
                    Fault{"BitmapName", TypeBitmap, NoText, NoBitmap},
                    Fault{"BitmapNarrow", TypeBitmap, Narrow, BadPoints},
                    Fault{"MarkFlat", TypeMark, Flat, BadPoints},
                    Fault{"ScrollNarrow", TypeScrollBar, Narrow, BadPoints},
                    Fault{"SpinDot", TypeSpinButton, Dot, BadPoints},
                    Fault{"ScrollFrame", TypeScrollBar, Parm(15, -1), BadWidth0},
                    Fault{"ScrollDisplay", TypeScrollBar, Parm(16, 0), BadDisplayAmount},
                    Fault{"ScrollData", TypeScrollBar, Parm(17, -1), BadDataAmount},
                    Fault{"ScrollSingleStep", TypeScrollBar, Parm(18, -1), BadStep},
                    Fault{"ScrollDoubleStep", TypeScrollBar, Parm(19, -1), BadStep},
                    Fault{"ScrollPageStep", TypeScrollBar, Parm(20, -1), BadStep},
                    Fault{"ScrollNoSingle", TypeScrollBar, Parms(8, 1, 18, 0), NoStep},
                    Fault{"ScrollNoDouble", TypeScrollBar, Parms(9, 1, 19, 0), NoStep},
                    Fault{"ScrollNoPage", TypeScrollBar, Parm(20, 0), NoStep},
                    Fault{"ScrollCode", TypeScrollBar, Code(""), NoCode},
                    Fault{"SpinLimits", TypeSpinButton, Parms(16, 9, 17, -9), BadLimits},
                    Fault{"SpinCode", TypeSpinButton, Code(""), NoCode}),
    NameOf);

std::function<void(PTRNDATA&)> Processing(gint kind) {
  return [=](PTRNDATA& item) {
    item.ID_Type = kind;
    CopyText(item.ID_Code, "");
    CopyText(item.ID_Name, "");
  };
}

INSTANTIATE_TEST_SUITE_P(
    Identification, FaultTest,
    testing::Values(Fault{"Number", TypeButton, [](PTRNDATA& item) { item.ID_No = -1; }, BadNumber},
                    Fault{"FirstMessage", TypeButton, Processing(1), NoCode},
                    Fault{"LastMessage", TypeButton, Processing(4), NoCode},
                    Fault{"FirstOpening", TypeButton, Processing(5), NoLayoutName},
                    Fault{"LastOpening", TypeButton, Processing(8), NoLayoutName},
                    Fault{"CodeStartsWithDigit", TypeButton, Code("9x"), BadCodeStart},
                    Fault{"CodeStartsWithHyphen", TypeButton, Code("-a"), BadCodeStart},
                    Fault{"CodeStartsWithKanji", TypeButton, Code("\xB4\xC1"), BadCodeStart}),
    NameOf);

std::function<void(PTRNDATA&)> Both(std::function<void(PTRNDATA&)> one,
                                    std::function<void(PTRNDATA&)> other) {
  return [=](PTRNDATA& item) {
    one(item);
    other(item);
  };
}

void BadItemNumber(PTRNDATA& item) {
  item.ID_No = -1;
}

// Of two faults, the one that is told.
INSTANTIATE_TEST_SUITE_P(
    Order, FaultTest,
    testing::Values(
        Fault{"LineDotFirst", TypeLine, Both(Dot, Parm(15, 0)), BadPoints},
        Fault{"FrameFlatFirst", TypeFrame, Both(Flat, Parm(24, -1)), BadPoints},
        Fault{"BarWidthBeforeLimits", TypeBarGraph, Both(Parm(15, -1), Parms(16, 5, 17, 5)),
              BadWidth0},
        Fault{"BarLimitsBeforeCode", TypeBarGraph, Both(Parms(16, 5, 17, 5), Code("")), BadLimits},
        Fault{"VariableLengthBeforeCode", TypeVariableString, Both(Parm(16, 0), Code("")),
              BadLength},
        Fault{"NumericBothLengths", TypeNumeric, Parms(16, 0, 17, 5), BadLength},
        Fault{"NumericDecimalsBeforeCode", TypeNumeric, Both(Parms(16, 3, 17, 3), Code("")),
              BadDecimals},
        Fault{"ButtonBorderBeforeOffset", TypeButton, Parms(16, 0, 14, -1), BadWidth0},
        Fault{"ScrollFrameBeforeAmount", TypeScrollBar, Parms(15, -1, 16, 0), BadWidth0},
        Fault{"ScrollDisplayBeforeData", TypeScrollBar, Parms(16, 0, 17, -1), BadDisplayAmount},
        Fault{"ScrollDataBeforeStep", TypeScrollBar, Parms(17, -1, 18, -1), BadDataAmount},
        Fault{"ScrollRangeBeforeMissing", TypeScrollBar, Parms(20, -1, 18, 0), BadStep},
        Fault{"ScrollStepBeforeCode", TypeScrollBar, Both(Parm(20, 0), Code("")), NoStep},
        Fault{"SpinLimitsBeforeCode", TypeSpinButton, Both(Parms(16, 9, 17, 1), Code("")),
              BadLimits},
        Fault{"TypeBeforeNumber", TypeRectangle, Both(Parm(15, 0), BadItemNumber), BadWidth0},
        Fault{"NumberBeforeCode", TypeButton, Both(BadItemNumber, Processing(1)), BadNumber},
        Fault{"NumberBeforeCodeStart", TypeButton, Both(BadItemNumber, Code("9")), BadNumber},
        Fault{"NameBeforeCodeStart", TypeButton, Both(Processing(5), Code("9")), NoLayoutName}),
    NameOf);

// What the rules just let pass.
struct Pass {
  const char* Name;
  gint Type;
  std::function<void(PTRNDATA&)> Set;
};

void PrintTo(const Pass& pass, std::ostream* out) {
  *out << pass.Name;
}

class PassTest : public EditFixture, public testing::WithParamInterface<Pass> {};

std::string PassName(const testing::TestParamInfo<Pass>& info) {
  return info.param.Name;
}

TEST_P(PassTest, ShowsNothing) {
  PtrnData = MakeValidItem(GetParam().Type, 10, 20, 50, 60);
  GetParam().Set(PtrnData);
  EXPECT_EQ(TestPtrnData(), 1);
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Limits, PassTest,
    testing::Values(
        Pass{"FrameWithoutBorders", TypeFrame, Both(Parms(24, 0, 25, 0), Parms(26, 0, 27, 0))},
        Pass{"LineWidth1", TypeLine, Parm(15, 1)},
        Pass{"RectangleWidth1", TypeRectangle, Parms(12, 0, 15, 1)},
        Pass{"FilledWithNegativeWidth", TypeRectangle, Parms(12, 1, 15, -1)},
        Pass{"BarWidths0", TypeBarGraph, Parms(14, 0, 15, 0)},
        Pass{"BarLimitsBelow0", TypeBarGraph, Parms(16, -5, 17, 0)},
        Pass{"VariableLength1", TypeVariableString, Parm(16, 1)},
        Pass{"NumericLength1", TypeNumeric, Parms(16, 1, 17, 0)},
        Pass{"ButtonLeast", TypeButton, Parms(16, 1, 14, 0)},
        Pass{"RadioNumber0", TypeRadioButton, Parm(27, 0)},
        Pass{"ScrollLeast", TypeScrollBar, Both(Parms(15, 0, 16, 1), Parms(17, 0, 20, 1))},
        Pass{"ScrollWithoutArrows", TypeScrollBar, Both(Parms(8, 0, 18, 0), Parms(9, 0, 19, 0))},
        Pass{"SpinWithoutLimits", TypeSpinButton, Parms(16, 0, 17, 0)},
        Pass{"ProcessingWithoutNeed", TypeButton, Processing(0)},
        Pass{"ProcessingBeyondTheList", TypeButton, Processing(9)}),
    PassName);

class ValidationTest : public EditFixture {
 protected:
  static bool Passes(const PTRNDATA& item) {
    PtrnData = item;
    return TestPtrnData() == 1;
  }
};

TEST_F(ValidationTest, AnItemOfEachTypePasses) {
  for (gint type = 1; type <= 15; ++type) {
    EXPECT_TRUE(Passes(MakeValidItem(type, 10, 20, 50, 60))) << type;
  }
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

TEST_F(ValidationTest, ALineMayBeLevelOrUpright) {
  EXPECT_TRUE(Passes(MakeValidItem(TypeLine, 10, 20, 50, 20)));
  EXPECT_TRUE(Passes(MakeValidItem(TypeLine, 10, 20, 10, 60)));
}

TEST_F(ValidationTest, AFilledShapeNeedsNoLine) {
  PTRNDATA item = MakeValidItem(TypeEllipse, 10, 20, 50, 60);
  item.Parm[12] = 1;
  item.Parm[15] = 0;
  EXPECT_TRUE(Passes(item));
}

TEST_F(ValidationTest, LimitsThatAreBothZeroAreNoLimits) {
  PTRNDATA item = MakeValidItem(TypeBarGraph, 10, 20, 50, 60);
  item.Parm[17] = 0;
  EXPECT_TRUE(Passes(item));
}

TEST_F(ValidationTest, OnlyTheFirstCharacterOfACodeCounts) {
  PTRNDATA item = MakeValidItem(TypeButton, 10, 20, 50, 60);
  for (const char* code : {"a-b", "_1", "Z!", "x\xB4\xC1"}) {
    CopyText(item.ID_Code, code);
    EXPECT_TRUE(Passes(item)) << code;
  }
}

TEST_F(ValidationTest, AValidItemIsReplacedByItsSnappedCopy) {
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;  // 10 dots
  PtrnHedr.Parm2[ViewSlot::GridY] = 8;  // 20 dots
  EXPECT_TRUE(Passes(MakeValidItem(TypeRectangle, 58, 64, 12, 24)));
  // Two-point items snap to half the grid, corners in order.
  EXPECT_EQ(PointsOf(PtrnData), "(10,20)-(60,60)");
}

TEST_F(ValidationTest, ALineKeepsItsDirection) {
  EXPECT_TRUE(Passes(MakeValidItem(TypeLine, 50, 60, 10, 20)));
  EXPECT_EQ(PointsOf(PtrnData), "(50,60)-(10,20)");
}

TEST_F(ValidationTest, ATextIsCentredInWholeGridRows) {
  PtrnHedr.Parm2[ViewSlot::GridY] = 5;  // 10 dots
  FontHeight[3] = 13;
  PTRNDATA item = MakeValidItem(TypeFixedString, 7, 42, 0, 0);
  item.Parm[15] = 3;
  EXPECT_TRUE(Passes(item));
  EXPECT_EQ(gint{PtrnData.Point1.x}, 7);
  EXPECT_EQ(gint{PtrnData.Point1.y}, 44);  // 40, and half of the 7 dots that two rows leave
}

TEST_F(ValidationTest, ShapesThatSnapFlatAreRefused) {
  PtrnHedr.Parm2[ViewSlot::GridX] = 5;
  PtrnHedr.Parm2[ViewSlot::GridY] = 5;
  EXPECT_FALSE(Passes(MakeValidItem(TypeRectangle, 10, 20, 50, 22)));
}

TEST_F(ValidationTest, AnUnknownMessageShowsNothing) {
  EXPECT_EQ(DispErrorMesg(-1), 0);
  EXPECT_EQ(DispErrorMesg(19), 0);
  EXPECT_THAT(Screen.Take(), IsEmpty());
}

}  // namespace
