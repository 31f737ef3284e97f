#include "layout/dialog/LayoutSettingsPages.h"

#include "dialogs/kit/Rows.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
#include "layout/Parameters.h"
#include "layout/Store.h"
#include "support/Resource.h"

using namespace Rows;

namespace {

gint* Parm1(gint slot) {
  return IntAt(&EditHedr, offsetof(PTRNHEDR, Parm1) + static_cast<gsize>(slot) * sizeof(gint));
}

gint* Parm2(gint slot) {
  return IntAt(&EditHedr, offsetof(PTRNHEDR, Parm2) + static_cast<gsize>(slot) * sizeof(gint));
}

const gchar* LabelOf(gint slot) {
  return FindParameter(HeaderParameters(), slot)->Label;
}

const ValueRange& RangeOf(gint slot) {
  return FindParameter(HeaderParameters(), slot)->Range;
}

// Rows of the layout's own parameters, with their ranges, the texts of their values and their
// labels.
DLG_NUMRBOX Number(gint line, gint culm, gint slot, const gchar* caption) {
  return Rows::Number(line, culm, Parm1(slot), RangeOf(slot).Least, RangeOf(slot).Most, caption);
}

DLG_RADIOBUTN Radio(gint line, gint culm, gint slot, gint value) {
  return Rows::Radio(line, culm, Parm1(slot), value, RangeOf(slot).Values[value]);
}

DLG_CHECKBUTN Switch(gint line, gint culm1, gint culm2, gint slot) {
  return Check(line, culm1, culm2, Parm1(slot), LabelOf(slot));
}

// A row of what else the header holds.
DLG_CHECKBUTN Option(gint line, gint culm1, gint culm2, gint slot) {
  return Check(line, culm1, culm2, Parm2(slot), FindParameter(ViewParameters(), slot)->Label);
}

constexpr gint TitleSize = 80;
constexpr gint BitmapSize = 20;

// Title rows come first in the tables that have them: one per language shown.
constexpr const gchar* OnlyTitle = "タイトル";
constexpr const gchar* FirstTitle = "タイトル１";

void ShowTitles(DLG_STRING* labels, DLG_EDITBOX* entries) {
  const gint language = TextIndex(Language);
  labels[0].text = language == 0 ? OnlyTitle : FirstTitle;
  for (gint no = 0; no < 3; ++no) {
    labels[no].culm1 = no <= language ? 0 : -1;
    entries[no].culm1 = no <= language ? 1 : -1;
  }
}

}  // namespace

// Parent window.

DLG_STRING EditPtrn1_String[] = {
    Label(1, OnlyTitle),     Label(2, "タイトル２"),
    Label(3, "タイトル３"),  Label(0, "タイトル領域"),
    Label(4, "フォント"),    Label(5, LabelOf(HedrSlot::TitlePosition)),
    Label(6, "作業領域"),    Label(7, "ビットマップ名"),
    Label(8, "ボタン領域"),  Label(9, LabelOf(HedrSlot::MouseCursor)),
    Label(10, "キー入力時"), EndString};
DLG_EDITBOX EditPtrn1_Edit[] = {Entry(1, 1, 4, EditHedr.PtrnName1, TitleSize, false),
                                Entry(2, 1, 4, EditHedr.PtrnName2, TitleSize, false),
                                Entry(3, 1, 4, EditHedr.PtrnName3, TitleSize, false),
                                Entry(7, 1, 3, EditHedr.BmapName, BitmapSize, false), EndEditBox};
DLG_NUMRBOX EditPtrn1_Numr[] = {Number(0, 1, HedrSlot::TitleHeight, "高さ"),
                                Number(8, 1, HedrSlot::ButtonAreaHeight, "高さ"), EndNumrBox};
DLG_COMBOBOX EditPtrn1_Combo[] = {Choice(4, 1, 4, Parm1(HedrSlot::TitleFont), FontNameList),
                                  EndComboBox};
DLG_RADIOBUTN EditPtrn1_Radio[] = {
    Radio(5, 1, HedrSlot::TitlePosition, 0), Radio(5, 2, HedrSlot::TitlePosition, 1),
    Radio(9, 1, HedrSlot::MouseCursor, 0),   Radio(9, 2, HedrSlot::MouseCursor, 1),
    Radio(9, 3, HedrSlot::MouseCursor, 2),   EndRadioButn};
DLG_CHECKBUTN EditPtrn1_Check[] = {Switch(6, 3, 4, HedrSlot::Gradation),
                                   Option(11, 1, 2, ViewSlot::StartScreen),
                                   Switch(11, 3, 4, HedrSlot::KeepAsIs), EndCheckButn};
DLG_COLRDATA EditPtrn1_Colr[] = {Colour(0, 2, Parm1(HedrSlot::TitleAreaColour), "領域色"),
                                 Colour(5, 3, Parm1(HedrSlot::TitleColour), "表示色"),
                                 Colour(6, 1, Parm1(HedrSlot::WorkAreaColour), "背景色"),
                                 Colour(8, 2, Parm1(HedrSlot::ButtonAreaColour), "領域色"),
                                 Colour(10, 1, Parm1(HedrSlot::KeyColour), "前景色"),
                                 Colour(10, 2, Parm1(HedrSlot::KeyBackColour), "背景色"),
                                 EndColrData};

// Child window. Its "中央" of the display position edits the same field as the title position.

DLG_STRING EditPtrn2_String[] = {Label(3, OnlyTitle),
                                 Label(4, "タイトル２"),
                                 Label(5, "タイトル３"),
                                 Label(0, "画面の解像度"),
                                 Label(1, "画面の表示位置"),
                                 Label(2, "タイトル領域"),
                                 Label(6, "フォント"),
                                 Label(7, LabelOf(HedrSlot::TitlePosition)),
                                 Label(8, "作業領域"),
                                 Label(9, "ビットマップ名"),
                                 Label(10, "子ウィンドウ"),
                                 Label(11, LabelOf(HedrSlot::MouseCursor)),
                                 Label(12, "マウス入力"),
                                 Label(13, "キー入力時"),
                                 EndString};
DLG_EDITBOX EditPtrn2_Edit[] = {Entry(3, 1, 4, EditHedr.PtrnName1, TitleSize, false),
                                Entry(4, 1, 4, EditHedr.PtrnName2, TitleSize, false),
                                Entry(5, 1, 4, EditHedr.PtrnName3, TitleSize, false),
                                Entry(9, 1, 3, EditHedr.BmapName, BitmapSize, false), EndEditBox};
DLG_NUMRBOX EditPtrn2_Numr[] = {Number(0, 1, HedrSlot::Width, "Ｘ"),
                                Number(0, 2, HedrSlot::Height, "Ｙ"),
                                Number(1, 1, HedrSlot::WindowX, "Ｘ"),
                                Number(1, 2, HedrSlot::WindowY, "Ｙ"),
                                Number(2, 1, HedrSlot::TitleHeight, "高さ"),
                                Number(10, 1, HedrSlot::FrameWidth, "枠幅"),
                                EndNumrBox};
DLG_COMBOBOX EditPtrn2_Combo[] = {Choice(6, 1, 4, Parm1(HedrSlot::TitleFont), FontNameList),
                                  EndComboBox};
DLG_RADIOBUTN EditPtrn2_Radio[] = {
    Radio(7, 1, HedrSlot::TitlePosition, 0), Radio(7, 2, HedrSlot::TitlePosition, 1),
    Radio(11, 1, HedrSlot::MouseCursor, 0),  Radio(11, 2, HedrSlot::MouseCursor, 1),
    Radio(11, 3, HedrSlot::MouseCursor, 2),  EndRadioButn};
DLG_CHECKBUTN EditPtrn2_Check[] = {Check(1, 3, 3, Parm1(HedrSlot::TitlePosition), "中央"),
                                   Switch(1, 4, 4, HedrSlot::Fixed),
                                   Switch(8, 3, 4, HedrSlot::Gradation),
                                   Switch(12, 1, 4, HedrSlot::ParentInput),
                                   Option(14, 1, 2, ViewSlot::StopScreen),
                                   Switch(14, 3, 4, HedrSlot::KeepAsIs),
                                   EndCheckButn};
DLG_COLRDATA EditPtrn2_Colr[] = {Colour(2, 2, Parm1(HedrSlot::TitleAreaColour), "領域色"),
                                 Colour(7, 3, Parm1(HedrSlot::TitleColour), "表示色"),
                                 Colour(8, 1, Parm1(HedrSlot::WorkAreaColour), "背景色"),
                                 Colour(10, 2, Parm1(HedrSlot::FrameColour), "枠色  "),
                                 Colour(13, 1, Parm1(HedrSlot::KeyColour), "前景色"),
                                 Colour(13, 2, Parm1(HedrSlot::KeyBackColour), "背景色"),
                                 EndColrData};

// Other.

DLG_STRING EditPtrn3_String[] = {
    Label(0, "領域の大きさ"), Label(1, "画面の表示位置"), Label(2, "レイアウト名"),
    Label(3, "作業領域"),     Label(4, "子ウィンドウ"),   Label(5, LabelOf(HedrSlot::MouseCursor)),
    Label(6, "マウス入力"),   Label(7, "キー入力時"),     EndString};
DLG_EDITBOX EditPtrn3_Edit[] = {Entry(2, 1, 4, EditHedr.PtrnName1, TitleSize, false), EndEditBox};
DLG_NUMRBOX EditPtrn3_Numr[] = {
    Number(0, 1, HedrSlot::Width, "Ｘ"),        Number(0, 2, HedrSlot::Height, "Ｙ"),
    Number(1, 1, HedrSlot::WindowX, "Ｘ"),      Number(1, 2, HedrSlot::WindowY, "Ｙ"),
    Number(4, 1, HedrSlot::FrameWidth, "枠幅"), EndNumrBox};
DLG_RADIOBUTN EditPtrn3_Radio[] = {Radio(5, 1, HedrSlot::MouseCursor, 0),
                                   Radio(5, 2, HedrSlot::MouseCursor, 1),
                                   Radio(5, 3, HedrSlot::MouseCursor, 2), EndRadioButn};
DLG_CHECKBUTN EditPtrn3_Check[] = {Check(1, 3, 3, Parm1(HedrSlot::TitlePosition), "中央"),
                                   Switch(6, 1, 4, HedrSlot::ParentInput),
                                   Switch(8, 1, 2, HedrSlot::KeepAsIs), EndCheckButn};
DLG_COLRDATA EditPtrn3_Colr[] = {Colour(3, 1, Parm1(HedrSlot::WorkAreaColour), "背景色"),
                                 Colour(4, 2, Parm1(HedrSlot::FrameColour), "枠色  "),
                                 Colour(7, 1, Parm1(HedrSlot::KeyColour), "前景色"),
                                 Colour(7, 2, Parm1(HedrSlot::KeyBackColour), "背景色"),
                                 EndColrData};

namespace {

constexpr gint BitmapRow = 3;

LayoutPage EditPtrnData1() {
  ShowTitles(EditPtrn1_String, EditPtrn1_Edit);
  return {"レイアウト情報の設定［親ウィンドウ］",
          {EditPtrn1_String, EditPtrn1_Edit, EditPtrn1_Numr, EditPtrn1_Combo, EditPtrn1_Radio,
           EditPtrn1_Check, EditPtrn1_Colr},
          &EditPtrn1_Edit[BitmapRow]};
}

LayoutPage EditPtrnData2() {
  ShowTitles(EditPtrn2_String, EditPtrn2_Edit);
  return {"レイアウト情報の設定［子ウィンドウ］",
          {EditPtrn2_String, EditPtrn2_Edit, EditPtrn2_Numr, EditPtrn2_Combo, EditPtrn2_Radio,
           EditPtrn2_Check, EditPtrn2_Colr},
          &EditPtrn2_Edit[BitmapRow]};
}

LayoutPage EditPtrnData3() {
  return {"レイアウト情報の設定［その他］",
          {EditPtrn3_String, EditPtrn3_Edit, EditPtrn3_Numr, nullptr, EditPtrn3_Radio,
           EditPtrn3_Check, EditPtrn3_Colr},
          nullptr};
}

}  // namespace

LayoutPage PageOfKind(gint kind) {
  if (kind == 0) return EditPtrnData1();
  return kind == 1 ? EditPtrnData2() : EditPtrnData3();
}
