#include "layout/dialog/LayoutSettingsPages.h"

#include "Constant.h"
#include "dialogs/kit/Rows.h"
#include "layout/Guards.h"
#include "layout/ItemSlots.h"
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

DLG_STRING EditPtrn1_String[] = {Label(1, OnlyTitle),     Label(2, "タイトル２"),
                                 Label(3, "タイトル３"),  Label(0, "タイトル領域"),
                                 Label(4, "フォント"),    Label(5, "表示位置"),
                                 Label(6, "作業領域"),    Label(7, "ビットマップ名"),
                                 Label(8, "ボタン領域"),  Label(9, "マウスカーソル形状"),
                                 Label(10, "キー入力時"), EndString};
DLG_EDITBOX EditPtrn1_Edit[] = {Entry(1, 1, 4, EditHedr.PtrnName1, TitleSize, false),
                                Entry(2, 1, 4, EditHedr.PtrnName2, TitleSize, false),
                                Entry(3, 1, 4, EditHedr.PtrnName3, TitleSize, false),
                                Entry(7, 1, 3, EditHedr.BmapName, BitmapSize, false), EndEditBox};
DLG_NUMRBOX EditPtrn1_Numr[] = {Number(0, 1, Parm1(HedrSlot::TitleHeight), 0, 99, "高さ"),
                                Number(8, 1, Parm1(HedrSlot::ButtonAreaHeight), 0, 99, "高さ"),
                                EndNumrBox};
DLG_COMBOBOX EditPtrn1_Combo[] = {Choice(4, 1, 4, Parm1(HedrSlot::TitleFont), FontNameList),
                                  EndComboBox};
DLG_RADIOBUTN EditPtrn1_Radio[] = {Radio(5, 1, Parm1(HedrSlot::TitlePosition), 0, "左端"),
                                   Radio(5, 2, Parm1(HedrSlot::TitlePosition), 1, "中央"),
                                   Radio(9, 1, Parm1(HedrSlot::MouseCursor), 0, "矢印"),
                                   Radio(9, 2, Parm1(HedrSlot::MouseCursor), 1, "十字"),
                                   Radio(9, 3, Parm1(HedrSlot::MouseCursor), 2, "砂時計"),
                                   EndRadioButn};
DLG_CHECKBUTN EditPtrn1_Check[] = {Check(6, 3, 4, Parm1(HedrSlot::Gradation), "グラデュエーション"),
                                   Check(11, 1, 2, Parm2(ViewSlot::StartScreen), "起動時画面"),
                                   Check(11, 3, 4, Parm1(HedrSlot::KeepAsIs), "自動更新不要"),
                                   EndCheckButn};
DLG_COLRDATA EditPtrn1_Colr[] = {Colour(0, 2, Parm1(HedrSlot::TitleAreaColour), "領域色"),
                                 Colour(5, 3, Parm1(HedrSlot::TitleColour), "表示色"),
                                 Colour(6, 1, Parm1(HedrSlot::WorkAreaColour), "背景色"),
                                 Colour(8, 2, Parm1(HedrSlot::ButtonAreaColour), "領域色"),
                                 Colour(10, 1, Parm1(HedrSlot::KeyColour), "前景色"),
                                 Colour(10, 2, Parm1(HedrSlot::KeyBackColour), "背景色"),
                                 EndColrData};

// Child window. Its "中央" of the display position edits the same field as the title position.

DLG_STRING EditPtrn2_String[] = {
    Label(3, OnlyTitle),        Label(4, "タイトル２"),     Label(5, "タイトル３"),
    Label(0, "画面の解像度"),   Label(1, "画面の表示位置"), Label(2, "タイトル領域"),
    Label(6, "フォント"),       Label(7, "表示位置"),       Label(8, "作業領域"),
    Label(9, "ビットマップ名"), Label(10, "子ウィンドウ"),  Label(11, "マウスカーソル形状"),
    Label(12, "マウス入力"),    Label(13, "キー入力時"),    EndString};
DLG_EDITBOX EditPtrn2_Edit[] = {Entry(3, 1, 4, EditHedr.PtrnName1, TitleSize, false),
                                Entry(4, 1, 4, EditHedr.PtrnName2, TitleSize, false),
                                Entry(5, 1, 4, EditHedr.PtrnName3, TitleSize, false),
                                Entry(9, 1, 3, EditHedr.BmapName, BitmapSize, false), EndEditBox};
DLG_NUMRBOX EditPtrn2_Numr[] = {Number(0, 1, Parm1(HedrSlot::Width), 10, 9999, "Ｘ"),
                                Number(0, 2, Parm1(HedrSlot::Height), 10, 9999, "Ｙ"),
                                Number(1, 1, Parm1(HedrSlot::WindowX), 10, 9999, "Ｘ"),
                                Number(1, 2, Parm1(HedrSlot::WindowY), 10, 9999, "Ｙ"),
                                Number(2, 1, Parm1(HedrSlot::TitleHeight), 0, 99, "高さ"),
                                Number(10, 1, Parm1(HedrSlot::FrameWidth), 0, 99, "枠幅"),
                                EndNumrBox};
DLG_COMBOBOX EditPtrn2_Combo[] = {Choice(6, 1, 4, Parm1(HedrSlot::TitleFont), FontNameList),
                                  EndComboBox};
DLG_RADIOBUTN EditPtrn2_Radio[] = {Radio(7, 1, Parm1(HedrSlot::TitlePosition), 0, "左端"),
                                   Radio(7, 2, Parm1(HedrSlot::TitlePosition), 1, "中央"),
                                   Radio(11, 1, Parm1(HedrSlot::MouseCursor), 0, "矢印"),
                                   Radio(11, 2, Parm1(HedrSlot::MouseCursor), 1, "十字"),
                                   Radio(11, 3, Parm1(HedrSlot::MouseCursor), 2, "砂時計"),
                                   EndRadioButn};
DLG_CHECKBUTN EditPtrn2_Check[] = {
    Check(1, 3, 3, Parm1(HedrSlot::TitlePosition), "中央"),
    Check(1, 4, 4, Parm1(HedrSlot::Fixed), "移動不可"),
    Check(8, 3, 4, Parm1(HedrSlot::Gradation), "グラデュエーション"),
    Check(12, 1, 4, Parm1(HedrSlot::ParentInput), "親ウィンドウで入力可"),
    Check(14, 1, 2, Parm2(ViewSlot::StopScreen), "終了時画面"),
    Check(14, 3, 4, Parm1(HedrSlot::KeepAsIs), "自動更新不要"),
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
    Label(3, "作業領域"),     Label(4, "子ウィンドウ"),   Label(5, "マウスカーソル形状"),
    Label(6, "マウス入力"),   Label(7, "キー入力時"),     EndString};
DLG_EDITBOX EditPtrn3_Edit[] = {Entry(2, 1, 4, EditHedr.PtrnName1, TitleSize, false), EndEditBox};
DLG_NUMRBOX EditPtrn3_Numr[] = {Number(0, 1, Parm1(HedrSlot::Width), 10, 9999, "Ｘ"),
                                Number(0, 2, Parm1(HedrSlot::Height), 10, 9999, "Ｙ"),
                                Number(1, 1, Parm1(HedrSlot::WindowX), 10, 9999, "Ｘ"),
                                Number(1, 2, Parm1(HedrSlot::WindowY), 10, 9999, "Ｙ"),
                                Number(4, 1, Parm1(HedrSlot::FrameWidth), 0, 99, "枠幅"),
                                EndNumrBox};
DLG_RADIOBUTN EditPtrn3_Radio[] = {Radio(5, 1, Parm1(HedrSlot::MouseCursor), 0, "矢印"),
                                   Radio(5, 2, Parm1(HedrSlot::MouseCursor), 1, "十字"),
                                   Radio(5, 3, Parm1(HedrSlot::MouseCursor), 2, "砂時計"),
                                   EndRadioButn};
DLG_CHECKBUTN EditPtrn3_Check[] = {
    Check(1, 3, 3, Parm1(HedrSlot::TitlePosition), "中央"),
    Check(6, 1, 4, Parm1(HedrSlot::ParentInput), "親ウィンドウで入力可"),
    Check(8, 1, 2, Parm1(HedrSlot::KeepAsIs), "自動更新不要"), EndCheckButn};
DLG_COLRDATA EditPtrn3_Colr[] = {Colour(3, 1, Parm1(HedrSlot::WorkAreaColour), "背景色"),
                                 Colour(4, 2, Parm1(HedrSlot::FrameColour), "枠色  "),
                                 Colour(7, 1, Parm1(HedrSlot::KeyColour), "前景色"),
                                 Colour(7, 2, Parm1(HedrSlot::KeyBackColour), "背景色"),
                                 EndColrData};

LayoutPage PageOfKind(gint kind) {
  constexpr gint BitmapRow = 3;
  if (kind == 0) {
    ShowTitles(EditPtrn1_String, EditPtrn1_Edit);
    return {"レイアウト情報の設定［親ウィンドウ］",
            {EditPtrn1_String, EditPtrn1_Edit, EditPtrn1_Numr, EditPtrn1_Combo, EditPtrn1_Radio,
             EditPtrn1_Check, EditPtrn1_Colr},
            &EditPtrn1_Edit[BitmapRow]};
  }
  if (kind == 1) {
    ShowTitles(EditPtrn2_String, EditPtrn2_Edit);
    return {"レイアウト情報の設定［子ウィンドウ］",
            {EditPtrn2_String, EditPtrn2_Edit, EditPtrn2_Numr, EditPtrn2_Combo, EditPtrn2_Radio,
             EditPtrn2_Check, EditPtrn2_Colr},
            &EditPtrn2_Edit[BitmapRow]};
  }
  return {"レイアウト情報の設定［その他］",
          {EditPtrn3_String, EditPtrn3_Edit, EditPtrn3_Numr, nullptr, EditPtrn3_Radio,
           EditPtrn3_Check, EditPtrn3_Colr},
          nullptr};
}
