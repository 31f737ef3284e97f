#include "project/dialog/ProjectSettingsPages.h"

#include "Constant.h"
#include "dialogs/kit/Rows.h"
#include "layout/ProjectSlots.h"
#include "project/ProjectRecord.h"
#include "support/Resource.h"

using namespace Rows;

namespace {

gint* Parm1(gint slot) {
  return IntAt(&EditData, offsetof(PROJDATA, Parm1) + static_cast<gsize>(slot) * sizeof(gint));
}
gint* Parm2(gint slot) {
  return IntAt(&EditData, offsetof(PROJDATA, Parm2) + static_cast<gsize>(slot) * sizeof(gint));
}
gint* Parm3(gint slot) {
  return IntAt(&EditData, offsetof(PROJDATA, Parm3) + static_cast<gsize>(slot) * sizeof(gint));
}
gint* Parm4(gint slot) {
  return IntAt(&EditData, offsetof(PROJDATA, Parm4) + static_cast<gsize>(slot) * sizeof(gint));
}

}  // namespace

// General.

DLG_STRING ProjPage1_String[] = {Label(0, "プロジェクト名"),
                                 Label(1, "プロジェクト情報格納先フォルダー"),
                                 Label(2, "ロジック情報格納先フォルダー"),
                                 Label(3, "画面の解像度"),
                                 Label(4, "多国籍言語対応"),
                                 Label(5, "表示色切替え"),
                                 EndString};
DLG_EDITBOX ProjPage1_Edit[] = {Entry(0, 1, 3, EditName, 80, false),
                                Entry(1, 1, 3, EditPath, 256, true),
                                Entry(2, 1, 3, EditData.ProgPath, 256, true), EndEditBox};
DLG_COMBOBOX ProjPage1_Combo[] = {Choice(3, 1, 2, Parm1(ProjectSlot::DisplaySize), DispSizeList),
                                  EndComboBox};
DLG_RADIOBUTN ProjPage1_Radio[] = {Radio(4, 1, Parm1(ProjectSlot::Languages), 0, "１ヶ国"),
                                   Radio(4, 2, Parm1(ProjectSlot::Languages), 1, "２ヶ国"),
                                   Radio(4, 3, Parm1(ProjectSlot::Languages), 2, "３ヶ国"),
                                   Radio(5, 1, Parm1(ProjectSlot::ColourSystems), 0, "２系統"),
                                   Radio(5, 2, Parm1(ProjectSlot::ColourSystems), 1, "４系統"),
                                   EndRadioButn};

// Parent window.

DLG_STRING ProjPage21_String[] = {Label(2, "タイトル文字フォント"), Label(3, "表示位置"),
                                  Label(4, "日付・時刻表示形式"), Label(5, "文字フォント"),
                                  EndString};
DLG_NUMRBOX ProjPage21_Numr[] = {Number(0, 0, Parm2(ParentSlot::TitleHeight), 0, 99, "高さ"),
                                 EndNumrBox};
DLG_COLRDATA ProjPage21_Colr[] = {Colour(0, 1, Parm2(ParentSlot::TitleColour), "前景色"),
                                  Colour(0, 2, Parm2(ParentSlot::TitleAreaColour), "背景色"),
                                  EndColrData};
DLG_CHECKBUTN ProjPage21_Check[] = {
    Check(1, 0, 0, Parm2(ParentSlot::LogoShown), "ロゴマーク"),
    Check(6, 0, 0, Parm2(ParentSlot::VersionScreen), "バージョン情報画面"),
    Check(6, 1, 1, Parm2(ParentSlot::DebugScreen), "デバッグ画面"),
    Check(6, 2, 3, Parm2(ParentSlot::HardCopyShown), "ハードコピーボタン"), EndCheckButn};
DLG_EDITBOX ProjPage21_Edit[] = {Entry(1, 1, 2, EditData.LogoName, 20, true), EndEditBox};
DLG_COMBOBOX ProjPage21_Combo[] = {Choice(2, 1, 3, Parm2(ParentSlot::TitleFont), FontNameList),
                                   Choice(4, 1, 3, Parm2(ParentSlot::DateFormat), CalnFomtList),
                                   Choice(5, 1, 3, Parm2(ParentSlot::DateFont), FontNameList),
                                   EndComboBox};
DLG_RADIOBUTN ProjPage21_Radio[] = {Radio(3, 1, Parm2(ParentSlot::TitleCentred), 0, "左端"),
                                    Radio(3, 2, Parm2(ParentSlot::TitleCentred), 1, "中央"),
                                    EndRadioButn};
DLG_COLRDATA ProjPage22_Colr[] = {Colour(0, 0, Parm2(ParentSlot::WorkAreaColour), "背景色"),
                                  EndColrData};
DLG_NUMRBOX ProjPage23_Numr[] = {Number(0, 0, Parm2(ParentSlot::ButtonAreaHeight), 0, 99, "高さ"),
                                 EndNumrBox};
DLG_COLRDATA ProjPage23_Colr[] = {Colour(0, 1, Parm2(ParentSlot::ButtonAreaColour), "背景色"),
                                  EndColrData};

// Child window.

DLG_STRING ProjPage31_String[] = {Label(1, "タイトル文字フォント"), Label(2, "表示位置"),
                                  EndString};
DLG_NUMRBOX ProjPage31_Numr[] = {Number(0, 0, Parm3(ChildSlot::TitleHeight), 0, 99, "高さ"),
                                 EndNumrBox};
DLG_COLRDATA ProjPage31_Colr[] = {Colour(0, 1, Parm3(ChildSlot::TitleColour), "前景色"),
                                  Colour(0, 2, Parm3(ChildSlot::TitleAreaColour), "背景色"),
                                  EndColrData};
DLG_COMBOBOX ProjPage31_Combo[] = {Choice(1, 1, 3, Parm3(ChildSlot::TitleFont), FontNameList),
                                   EndComboBox};
DLG_RADIOBUTN ProjPage31_Radio[] = {Radio(2, 1, Parm3(ChildSlot::TitleCentred), 0, "左端"),
                                    Radio(2, 2, Parm3(ChildSlot::TitleCentred), 1, "中央"),
                                    EndRadioButn};
DLG_COLRDATA ProjPage32_Colr[] = {Colour(0, 0, Parm3(ChildSlot::WorkAreaColour), "背景色"),
                                  EndColrData};
DLG_NUMRBOX ProjPage33_Numr[] = {Number(0, 0, Parm3(ChildSlot::FrameWidth), 0, 99, "枠幅"),
                                 EndNumrBox};
DLG_COLRDATA ProjPage33_Colr[] = {Colour(0, 1, Parm3(ChildSlot::FrameColour), "枠色  "),
                                  EndColrData};

// Other.

DLG_RADIOBUTN ProjPage41_Radio[] = {Radio(0, 0, Parm4(CommonSlot::MouseCursor), 0, "矢印"),
                                    Radio(0, 1, Parm4(CommonSlot::MouseCursor), 1, "十字"),
                                    Radio(0, 2, Parm4(CommonSlot::MouseCursor), 2, "砂時計"),
                                    EndRadioButn};
DLG_COLRDATA ProjPage42_Colr[] = {Colour(0, 0, Parm4(CommonSlot::KeyColour), "前景色"),
                                  Colour(0, 1, Parm4(CommonSlot::KeyBackColour), "背景色"),
                                  EndColrData};
DLG_STRING ProjPage43_String[] = {Label(0, "縱"), Label(0, "横", 2), EndString};
DLG_COMBOBOX ProjPage43_Combo[] = {Choice(0, 1, 1, Parm4(CommonSlot::GridX), GridIntvList),
                                   Choice(0, 3, 3, Parm4(CommonSlot::GridY), GridIntvList),
                                   EndComboBox};
DLG_COLRDATA ProjPage43_Colr[] = {Colour(0, 4, Parm4(CommonSlot::GridColour), "表示色"),
                                  EndColrData};

std::span<const ProjectPage> ProjectPages() {
  static const ProjectFrame general[] = {{nullptr,
                                          {.String = ProjPage1_String,
                                           .Edit = ProjPage1_Edit,
                                           .Combo = ProjPage1_Combo,
                                           .Radio = ProjPage1_Radio}}};
  static const ProjectFrame parent[] = {
      {"タイトル領域",
       {.String = ProjPage21_String,
        .Edit = ProjPage21_Edit,
        .Numr = ProjPage21_Numr,
        .Combo = ProjPage21_Combo,
        .Radio = ProjPage21_Radio,
        .Check = ProjPage21_Check,
        .Colr = ProjPage21_Colr}},
      {"作業領域", {.Colr = ProjPage22_Colr}},
      {"ボタン領域", {.Numr = ProjPage23_Numr, .Colr = ProjPage23_Colr}}};
  static const ProjectFrame child[] = {
      {"タイトル領域",
       {.String = ProjPage31_String,
        .Numr = ProjPage31_Numr,
        .Combo = ProjPage31_Combo,
        .Radio = ProjPage31_Radio,
        .Colr = ProjPage31_Colr}},
      {"作業領域", {.Colr = ProjPage32_Colr}},
      {"外枠", {.Numr = ProjPage33_Numr, .Colr = ProjPage33_Colr}}};
  static const ProjectFrame other[] = {
      {"マウスカーソル形状", {.Radio = ProjPage41_Radio}},
      {"キー入力時", {.Colr = ProjPage42_Colr}},
      {"方眼表示",
       {.String = ProjPage43_String, .Combo = ProjPage43_Combo, .Colr = ProjPage43_Colr}}};
  static const ProjectPage pages[] = {
      {"全般", general}, {"親ウィンドウ", parent}, {"子ウィンドウ", child}, {"その他", other}};
  return pages;
}
